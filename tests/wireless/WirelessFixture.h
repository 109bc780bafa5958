#pragma once

#include <quorvel/AspWirelessSettingsFacade.h>
#include <quorvel/AspWirelessSettingsFacadeNG.h>

#include "support/FacadeOnGateway.h"
#include "support/Golden.h"
#include "support/RequestCases.h"
#include "support/Transcript.h"

#include <boost/shared_ptr.hpp>

namespace quorvel::test
{

/// All fields of a record in their order, between bars.
QString shown(const AspWirelessSettings& settings);
/// A link as "address on" or "address off", several of them with commas between.
QString shown(const QList<AspWirelessMeshInst>& links);
/// Texts with commas between.
QString shown(const QStringList& texts);

/// A record with something in every field, for a radio that is on.
AspWirelessSettings wholeRecord(const char* mode);

/// A gateway with a radio of each generation, and their facades.
class WirelessRadios : public FacadeOnGateway<AspFacade>
{
protected:
    void SetUp() override;

    boost::shared_ptr<AspWirelessSettingsFacade> older;   ///< of wireless_core-0
    boost::shared_ptr<AspWirelessSettingsFacadeNG> newer; ///< of wireless-0
};

} // namespace quorvel::test
