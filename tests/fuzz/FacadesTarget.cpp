#include "fuzz/FacadeOperations.h"
#include "fuzz/FedGateway.h"
#include "fuzz/Require.h"
#include "protocol/AspResponseParserV2.h"

#include <algorithm>

/// \file
/// Whole replies through the facades of all families. An input is a character that chooses the
/// operation, "1" for a gateway of the older dialect or anything else for the newer one, and the
/// replies, with ASCII's record separator between them.

namespace quorvel::fuzz
{

namespace
{

/// What came of a call.
struct Outcome {
    QString result;
    AspWebAppErrorCodes error;
    int requests;
};

Outcome outcomeOf(const FacadeOperation& operation, bool speaksNewerDialect,
                  const QStringList& replies)
{
    const FedGateway gateway(speaksNewerDialect, replies);
    Outcome outcome{QString(), AspWebAppErrorCodes(77), 0};
    outcome.result = operation.call(gateway.cpe, outcome.error);
    outcome.requests = gateway.executor->requests.size();
    return outcome;
}

bool isReadable(const QString& reply)
{
    ParamMap entries;
    return AspResponseParserV2().parse(reply, entries);
}

/// Whether a gateway says nothing in all of these replies, not even that an exchange ends
/// otherwise.
bool sayNothing(const QStringList& replies)
{
    return std::none_of(replies.cbegin(), replies.cend(), [](const QString& reply) {
        return reply.startsWith(QLatin1Char('!')) || isReadable(reply);
    });
}

void run(unsigned char choice, bool speaksNewerDialect, const QStringList& replies)
{
    const auto& operations = facadeOperations();
    // The first of them is a blank, so that most choices can be read.
    const unsigned char index = choice - 32;
    const FacadeOperation& operation = operations[index % operations.size()];
    const Outcome outcome = outcomeOf(operation, speaksNewerDialect, replies);
    require(outcome.error != 77, "an operation tells how it ended");
    Outcome again = outcomeOf(operation, speaksNewerDialect, replies);
    if (faultIsPlanted() && outcome.result.contains(QLatin1Char('2')))
        again.result += outcome.result;
    require(again.result == outcome.result && again.error == outcome.error,
            "the same replies give the same result");
    if (operation.takesAnyAnswer || outcome.requests > replies.size() || !sayNothing(replies))
        return;
    const Outcome unanswered = outcomeOf(operation, speaksNewerDialect, {});
    require(outcome.result == unanswered.result, "unreadable replies give the default");
    require(outcome.error == (unanswered.error == AspWebAppRequestFailed ? AspWebAppLoginFailed
                                                                         : unanswered.error),
            "unreadable replies are told from none");
}

} // namespace

} // namespace quorvel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const QString replies =
        QString::fromUtf8(reinterpret_cast<const char*>(data) + 2, int(size) - 2);
    quorvel::fuzz::run(data[0], data[1] != '1', replies.split(QChar(0x1e)));
    return 0;
}
