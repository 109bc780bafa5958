#include "assembly/CpeBuilderDirector.h"

#include "assembly/AspCpeRecognizer.h"
#include "protocol/Log.h"

namespace quorvel
{

boost::shared_ptr<Cpe> CpeBuilderDirector::buildCpe(boost::shared_ptr<CpeBuilder> builder,
                                                    const AuthenticationInfo& info)
{
    ParamMap parameters;
    AspCpeRecognizer recognizer;
    if (!recognizer.recognize(info, parameters))
        return boost::shared_ptr<Cpe>();
    return assemble(*builder, parameters, info);
}

boost::shared_ptr<Cpe> CpeBuilderDirector::assemble(CpeBuilder& builder, const ParamMap& parameters,
                                                    const AuthenticationInfo& info)
{
    logDebug(QStringLiteral("Building CPE..."));
    const bool built = builder.buildCpe(parameters) && builder.buildSettingsImplementors() &&
                       builder.buildRequestExecutor() && builder.buildRequestFormatter() &&
                       builder.buildResponseParser() && builder.buildAuthenticator(info);
    if (!built) {
        logError(QStringLiteral("Failed to build CPE!"));
        return boost::shared_ptr<Cpe>();
    }
    logDebug(QStringLiteral("CPE is built."));
    return builder.getCpe();
}

} // namespace quorvel
