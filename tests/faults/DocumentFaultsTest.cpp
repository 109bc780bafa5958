#include "faults/FaultRow.h"
#include "support/HostileDocuments.h"

namespace quorvel::test
{

namespace
{

/// A row per document, with the outcome that they share; some documents differ further.
std::vector<Fault> rows(const std::vector<HostileDocument>& documents, int error,
                        Fault (*change)(const Fault&) = nullptr)
{
    std::vector<Fault> rows;
    for (const HostileDocument& document : documents) {
        const Fault row{document.name,
                        playing([document](ScriptedGateway& gateway) {
                            gateway.sendRaw(httpReply(document.content()));
                        }),
                        {error}};
        rows.push_back(change ? change(row) : row);
    }
    return rows;
}

Fault onSmallStack(const Fault& row)
{
    return row.onStackOf256Kilobytes();
}

Fault asAnyEntity(const Fault& row)
{
    return row.soonerThan(50).growingAtMost(1);
}

/// Large ones take a moment each.
Fault asLarge(const Fault& row)
{
    return row.times(3).soonerThan(5000);
}

} // namespace

using DocumentFault = FaultRow;

TEST_P(DocumentFault, IsReportedAndTheNextExchangeWorks)
{
    expectOutcome(GetParam());
}

INSTANTIATE_TEST_SUITE_P(IllFormed, DocumentFault,
                         testing::ValuesIn(rows(illFormedDocuments(), 25)), FaultName());
INSTANTIATE_TEST_SUITE_P(WithEntities, DocumentFault,
                         testing::ValuesIn(rows(entityDocuments(), 25, asAnyEntity)), FaultName());
INSTANTIATE_TEST_SUITE_P(Deep, DocumentFault,
                         testing::ValuesIn(rows(deepDocuments(), 25, onSmallStack)), FaultName());
INSTANTIATE_TEST_SUITE_P(Crowded, DocumentFault,
                         testing::ValuesIn(rows(crowdedDocuments(), 25, asLarge)), FaultName());
INSTANTIATE_TEST_SUITE_P(ThatIsNone, DocumentFault,
                         testing::ValuesIn(rows(oddDocuments(), 0, asLarge)), FaultName());

} // namespace quorvel::test
