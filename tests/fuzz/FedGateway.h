#pragma once

#include "assembly/Cpe.h"
#include "protocol/RequestExecutor.h"

#include <QStringList>
#include <boost/shared_ptr.hpp>

namespace quorvel::fuzz
{

/// A transport that answers with given texts instead of a gateway. A text "!" and a digit ends its
/// exchange with that RequestStatus. When the texts are used up, every exchange fails, logins too;
/// so a gateway that refuses each session comes to an end.
class FedExecutor : public RequestExecutor
{
public:
    explicit FedExecutor(QStringList replies) : replies(std::move(replies)) {}

    int execute(const ParamMap& params, ParamMap& result) override;
    void abortPendingRequests() override {}

    /// The requests to the web application, in their order.
    QStringList requests;

private:
    QStringList replies;
};

/// A gateway of the newest kind, or one that speaks the older dialect, with a session stored.
class FedGateway
{
public:
    FedGateway(bool speaksNewerDialect, const QStringList& replies);
    /// Leaves next to nothing of the gateway to a manager of radios, which keeps it for ever.
    ~FedGateway();

    boost::shared_ptr<FedExecutor> executor;
    boost::shared_ptr<Cpe> cpe;

private:
    Q_DISABLE_COPY(FedGateway)
};

/// A reply of the newer dialect, whose objects hold an entry each.
QString pairReply(const QString& object, const ParamMap& entries);

} // namespace quorvel::fuzz
