#include <quorvel/AspWirelessSettingsFacadeNG.h>
#include <quorvel/Capabilities.h>

#include "support/BuiltGateway.h"
#include "support/HostileDocuments.h"
#include "support/MemoryWatch.h"
#include "support/Resources.h"
#include "support/Text.h"

#include <QElapsedTimer>

namespace quorvel::test
{

namespace
{

/// What a radio tells that it can do, as it stands in the reply, in parts; and whether its band of
/// 5 GHz is found in it.
struct CapabilityDocument {
    HostileDocument document;
    bool hasBand = false;
};

void PrintTo(const CapabilityDocument& document, std::ostream* out)
{
    *out << document.document.name;
}

const char band[] = "\"band\": {\"5000\": {\"text\": \"5\"}}}";

std::vector<CapabilityDocument> documents()
{
    const QByteArray behind = QByteArray(", ") + band;
    return {{{"NestedBelowTheLimit", {{"{\"a\":"}, {"[", 1023}, {"]", 1023}, {behind}}}, true},
            {{"Nested1025Deep", {{"{\"a\":"}, {"[", 1024}, {"]", 1024}, {behind}}}},
            {{"NestedAMillionDeep", {{"{\"a\":"}, {"[", 1000000}, {"]", 1000000}, {behind}}}},
            {{"NotUtf8", {{"{\"\xff\xc0\": \"\xed\xa0\x80\", "}, {band}}}, true},
            {{"Truncated", {{"{\"a\": 1, \"band\": {\"5000\": {\"text\": "}}}},
            {{"NoDocument", {{""}}}},
            {{"NotJson", {{"Internal server error"}}}},
            {{"NoObject", {{"[1, 2, 3]"}}}},
            {{"WrongTypesEverywhere",
              {{"{\"operationModes\": 1, \"apPrefix\": {}, \"staPrefix\": null, \"wdsPrefix\": "
                "\"x\", \"band\": {\"2400\": [], \"5000\": {\"text\": [], \"channels\": 1, "
                "\"modes\": {\"a\": null, \"b\": {\"chanbws\": [1]}}}}}"}}},
             true},
            {{"BandOfAnotherType", {{"{\"band\": [1, 2]}"}}}},
            {{"LongText", {{"{\"a\": \""}, {"x", 3000000}, {"\""}, {behind}}}, true},
            {{"ManyNumbers", {{"{\"a\": [1"}, {",1", 1500000}, {"]"}, {behind}}}},
            {{"ManyObjects", {{"{\"a\": [{}"}, {",{}", 1000000}, {"]"}, {behind}}}},
            {{"ManyKeys", {{"{\"a\": {\"b\": 1"}, {",\"%1\":1", 300000}, {"}"}, {behind}}}},
            {{"RepeatedKeys", {{"{\"a\": {\"b\": [1]"}, {",\"b\": [1]", 20000}, {"}"}, {behind}}},
             true},
            {{"ManyNestedArrays",
              {{"{\"a\": [0"},
               {"," + QByteArray(1000, '[') + QByteArray(1000, ']'), 1500},
               {"]"},
               {behind}}}},
            {{"ManyObjectsButNotTooMany",
              {{"{\"a\": {\"b\": 1"}, {",\"%1\":{\"c\":1}", 24000}, {"}"}, {behind}}},
             true},
            {{"ManyChannels",
              {{"{\"band\": {\"5000\": {\"channels\": {\"x\": {}"},
               {",\"%1\": {}", 200000},
               {"}}}}"}}}}};
}

class CapabilityFaults : public BuiltGateway, public testing::WithParamInterface<CapabilityDocument>
{
protected:
    CapabilityFaults() { buildNewest(); }

    void tell(const QByteArray& document)
    {
        // The last character is never read.
        gateway.sendRaw(httpReply("<response version=\"1.0.1\"><wireless-0>"
                                  "<key>wireless_capabilities</key><value>" +
                                  document + "\n</value></wireless-0></response>"));
    }

    bool hasBand()
    {
        AspWirelessSettingsFacadeNG facade(cpe);
        facade.setManager(text("wireless-0"));
        AspWebAppErrorCodes error = AspWebAppRequestFailed;
        facade.getWirelessCapabilities(error);
        EXPECT_EQ(error, 0);
        const auto found = facade.getCapabilities();
        return found && found->getBand() && found->getBand()->getGhz5000();
    }
};

} // namespace

TEST_P(CapabilityFaults, GiveAnEmptyOrPartialTree)
{
    tell(QByteArray("{") + band);
    EXPECT_TRUE(hasBand());
    const Resources before;
    const MemoryWatch memory;
    const QByteArray content = GetParam().document.content();
    for (int round = 0; round < (content.size() > 100000 ? 3 : 20); ++round) {
        tell(content);
        EXPECT_EQ(hasBand(), GetParam().hasBand);
        tell(QByteArray("{") + band);
        EXPECT_TRUE(hasBand());
    }
    EXPECT_TRUE(before.areBack());
    EXPECT_LE(memory.grownMegabytes(), 64);
}

INSTANTIATE_TEST_SUITE_P(Documents, CapabilityFaults, testing::ValuesIn(documents()),
                         [](const auto& info) { return std::string(info.param.document.name); });

} // namespace quorvel::test
