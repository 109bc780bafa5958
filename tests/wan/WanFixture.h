#pragma once

#include <quorvel/AspWanSettingsFacade.h>

#include "support/BuiltGateway.h"
#include "support/Golden.h"
#include "support/RequestCases.h"
#include "support/Transcript.h"

namespace quorvel::test
{

/// A reply with which a request fails in transport.
extern const QByteArray notFound;

/// All fields of a record in their order, lists with blanks between, behind bars.
QString shown(const AspWanDetails& details);
QString shown(const Asp3GSettings& settings);

/// A WAN facade on the newest kind of gateway.
class WanFacade : public BuiltGateway
{
protected:
    void SetUp() override;

    /// What was logged, without the transport's own lines.
    QStringList lines() const;

    AspWanSettingsFacade facade{boost::shared_ptr<Cpe>()};
    /// Neither success nor any failure that occurs, so that a code left unwritten shows.
    AspWebAppErrorCodes error = static_cast<AspWebAppErrorCodes>(77);
};

} // namespace quorvel::test
