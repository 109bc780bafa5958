#include "fuzz/ReferenceXml.h"
#include "fuzz/Require.h"
#include "protocol/AspResponseParser3g.h"
#include "protocol/AspResponseParserV1.h"
#include "protocol/AspResponseParserV2.h"

/// \file
/// The text of a reply through all three parsers. What another XML parser reads from the same text
/// tells what must come out.

namespace quorvel::fuzz
{

namespace
{

using Flattening = void (*)(const ReferenceDocument& document, ParamMap& entries);

void addLeaves(const Branch& branch, ParamMap& entries)
{
    for (const auto& [name, text] : branch.leaves)
        entries.insert(branch.name + QLatin1Char('.') + name, text);
}

void flattenV1(const ReferenceDocument& document, ParamMap& entries)
{
    for (const Branch& branch : document.branches)
        addLeaves(branch, entries);
}

/// The last value of a branch, and its keys as they come.
struct PairForm {
    std::vector<QString> keys;
    QString value;
};

PairForm pairFormOf(const Branch& branch)
{
    PairForm pair;
    for (const auto& [name, text] : branch.leaves) {
        if (name == QLatin1String("key"))
            pair.keys.push_back(text);
        else if (name == QLatin1String("value"))
            pair.value = text;
    }
    return pair;
}

void flattenV2(const ReferenceDocument& document, ParamMap& entries)
{
    for (const Branch& branch : document.branches) {
        const PairForm pair = pairFormOf(branch);
        if (pair.keys.empty() || pair.keys.back().isEmpty())
            addLeaves(branch, entries);
        else
            entries.insert(branch.name + QLatin1Char('.') + pair.keys.back(), pair.value);
    }
}

void flatten3g(const ReferenceDocument& document, ParamMap& entries)
{
    QString previous;
    int repetitions = 1;
    for (const Branch& branch : document.branches) {
        const PairForm pair = pairFormOf(branch);
        QString name;
        for (const QString& key : pair.keys) {
            const bool repeats = !key.isEmpty() && key == previous;
            name = repeats ? key + QString::number(++repetitions) : key;
            previous = key;
        }
        if (name.isEmpty())
            addLeaves(branch, entries);
        else
            entries.insert(branch.name + QLatin1Char('.') + name, pair.value);
    }
}

const ParamMap before{{QStringLiteral("kept"), QStringLiteral("as it was")}};

/// Whether both parsers have to read the same. Ours keeps line ends as they come, drops the
/// prefixes of namespaces, and takes no default from a document type; gateways use none of these.
bool isComparable(const QString& text, const ReferenceDocument& reference)
{
    return reference.wellFormed && !reference.hasDocumentType && !reference.usesNamespaces &&
           !text.contains(QLatin1Char('\r'));
}

/// Whether the text is accepted, after checking what became of the map.
template <typename Parser>
bool parses(const QString& text, const ReferenceDocument& reference, Flattening flatten)
{
    ParamMap entries = before;
    const bool accepted = Parser().parse(text, entries);
    if (faultIsPlanted() && !accepted && text.contains(QLatin1String("<webapp>")))
        entries.insert(QStringLiteral("webapp.error"), QString());
    if (!accepted)
        require(entries == before, "a refused text leaves no entry");
    if (!accepted || !isComparable(text, reference))
        return accepted;
    ParamMap expected = before;
    expected.insert(reference.root, reference.version);
    flatten(reference, expected);
    // The other parser reads white space in an attribute as blanks, ours as it comes.
    for (ParamMap* const map : {&entries, &expected})
        (*map)[reference.root]
            .replace(QLatin1Char('\n'), QLatin1Char(' '))
            .replace(QLatin1Char('\t'), QLatin1Char(' '));
    require(entries == expected, "the entries are those that another parser reads");
    return accepted;
}

} // namespace

} // namespace quorvel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    using namespace quorvel;
    using namespace quorvel::fuzz;
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
    const ReferenceDocument reference = readReference(text.toUtf8());
    const bool accepted = parses<AspResponseParserV1>(text, reference, flattenV1);
    require(parses<AspResponseParserV2>(text, reference, flattenV2) == accepted &&
                parses<AspResponseParser3g>(text, reference, flatten3g) == accepted,
            "the parsers agree on what is well-formed");
    if (reference.levels > 256)
        require(!accepted, "a document nested deeper than 256 levels is refused");
    else if (isComparable(text, reference))
        require(accepted, "a well-formed document is accepted");
    return 0;
}
