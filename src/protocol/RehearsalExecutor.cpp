#include "protocol/RehearsalExecutor.h"

#include "protocol/ParamKeys.h"

namespace quorvel
{

RehearsalExecutor::RehearsalExecutor(Taker take) : take(std::move(take)) {}

int RehearsalExecutor::execute(const ParamMap& params, ParamMap& result)
{
    take(params.value(HTTP_PARAM_DATA_TO_SEND));
    // Readable in both dialects: neither a value nor an error.
    result = {{REQUEST_EXEC_PARAM_RESULT, QStringLiteral("<response/>")}};
    return RequestSucceeded;
}

} // namespace quorvel
