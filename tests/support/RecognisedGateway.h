#pragma once

#include <quorvel/AuthenticationInfo.h>

#include "support/LogCapture.h"
#include "support/ScriptedGateway.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace quorvel::test
{

/// The list of a gateway's managers as the dialect 1.0.0 gives it.
QString managerList100(const QStringList& managers);

/// The list of a gateway's managers as the dialect 1.0.1 gives it.
QString managerList101(const QStringList& managers);

/// A scripted gateway that is yet to be recognised. Log lines are captured.
class RecognisedGateway : public testing::Test
{
protected:
    /// Credentials "admin" and "secret", and the gateway's address.
    AuthenticationInfo info() const;

    /// The same with another password.
    AuthenticationInfo infoWith(const char* password) const;

    /// Scripts the recognition of a gateway with dialect 1.0.1 and these managers: a login that
    /// hands out `session`, the list asked for in both dialects, and with "wan" among the managers
    /// a default WAN of the newer model.
    void scriptRecognition(const QStringList& managers, const QByteArray& session = "SID=1");

    /// Scripts a gateway to which `attempts` times nothing but the login's refusal is known.
    void scriptRefusal(int attempts);

    /// The body of the login form that the gateway received as the request of that index.
    QByteArray form(int index) const;

    LogCapture log;
    ScriptedGateway gateway;
};

} // namespace quorvel::test
