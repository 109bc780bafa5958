#include "operations/Operations.h"

namespace quorvel::test
{

AskedGateway::AskedGateway(const AuthenticationInfo& info, const boost::shared_ptr<Cpe>& cpe)
    : info(info),
      handle(info),
      general(cpe),
      internet(cpe),
      wan(cpe),
      older(cpe),
      newer(cpe),
      radios(cpe, lines({"wireless_core-0", "wireless-0"})),
      voice(cpe),
      usbHost(cpe)
{
    older.setManager(text("wireless_core-0"));
    newer.setManager(text("wireless-0"));
    radios.setManagerId(0);
}

} // namespace quorvel::test
