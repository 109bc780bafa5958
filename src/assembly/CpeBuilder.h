#pragma once

#include "assembly/Cpe.h"

#include <quorvel/AuthenticationInfo.h>
#include <quorvel/ParamMap.h>

#include <QList>
#include <boost/shared_ptr.hpp>

namespace quorvel
{

class CpeSettingsImplementor;

/// The steps in which a Cpe is put together, and those of them that don't depend on the kind of
/// gateway. Used once.
class CpeBuilder
{
public:
    CpeBuilder() = default;
    virtual ~CpeBuilder() = default;

    virtual bool buildResponseParser() = 0;
    virtual bool buildRequestFormatter() = 0;
    virtual bool buildRequestExecutor();
    virtual bool buildAuthenticator(const AuthenticationInfo& info);
    virtual bool buildCpe(const ParamMap& parameters);
    virtual bool buildSettingsImplementors() = 0;

    /// What is built so far; null at first.
    boost::shared_ptr<Cpe> getCpe() const { return cpe; }

protected:
    /// Whether a step can run: there is a Cpe with parameters. Else logs what is missing, behind
    /// `step`.
    bool hasParameters(const QString& step) const;
    /// Whether there is a Cpe. Else logs `complaint`.
    bool hasCpe(const QString& complaint) const;
    /// The implementors that exist, in the order in which all steps serve them.
    QList<boost::shared_ptr<CpeSettingsImplementor>> settingsImplementors() const;

private:
    Q_DISABLE_COPY(CpeBuilder)

    boost::shared_ptr<Cpe> cpe;
};

} // namespace quorvel
