#include <quorvel/Capabilities.h>

#include "support/Text.h"

#include <QJsonDocument>
#include <boost/make_shared.hpp>
#include <gtest/gtest.h>
#include <type_traits>

namespace quorvel::test
{

namespace
{

/// A tree of a document with single quotes in place of double ones.
boost::shared_ptr<Capabilities> tree(const char* json)
{
    QByteArray document(json);
    document.replace('\'', '"');
    QJsonParseError error;
    const QJsonDocument parsed = QJsonDocument::fromJson(document, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    const auto capabilities = boost::make_shared<Capabilities>();
    capabilities->setData(parsed.toVariant().toMap());
    capabilities->parse();
    return capabilities;
}

/// The 2.4 GHz band of such a document, given alone.
boost::shared_ptr<Ghz> ghz(const char* json)
{
    return tree((QByteArray("{'band':{'2400':") + json + "}}").constData())
        ->getBand()
        ->getGhz2400();
}

template <typename Item>
QStringList names(const QList<boost::shared_ptr<Item>>& items)
{
    QStringList texts;
    for (const auto& item : items)
        texts.append(item->getName());
    return texts;
}

QStringList texts(const QVariantList& values)
{
    QStringList shown;
    for (const QVariant& value : values)
        shown.append(value.toString());
    return shown;
}

const char* const wholeDocument = R"({
    'operationModes': ['ap', 'sta'], 'staPrefix': ['sta0'], 'apPrefix': ['ap0', 'ap1'],
    'wdsPrefix': ['wds0', 'wds1', 'wds2'], 'vendor': 'unread',
    'band': {
        '2400': {
            'text': '2.4 GHz', 'defaultMode': 'bgn', 'defaultChannel': 'auto',
            'channels': {'1': {'show': 1, 'dfs': 0, 'zenPair': 1, 'freqVal': 2412}},
            'modes': {'bgn': {
                'text': '802.11 b/g/n', 'defaultChannelBw': '20',
                'securityModes': {'wpa2': {'text': 'WPA2'}, 'off': {}},
                'chanbws': {'20': {'text': '20 MHz', 'rates': ['54M', '130M']}}}}},
        '5000': {
            'text': '5 GHz', 'defaultMode': 'an', 'defaultChannel': '36',
            'channels': {'52': {'show': 1, 'dfs': 2, 'zenPair': 3, 'freqVal': 5260}},
            'modes': {'an': {}}}}})";

} // namespace

TEST(CapabilityTree, ConsistsOfClassesOutsideAnyNamespaceThatMayBeDerivedFrom)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<::Capabilities>);
    EXPECT_TRUE(std::has_virtual_destructor_v<::Band>);
    EXPECT_TRUE(std::has_virtual_destructor_v<::Ghz>);
    EXPECT_TRUE(std::has_virtual_destructor_v<::Channels>);
    EXPECT_TRUE(std::has_virtual_destructor_v<::Channel>);
    EXPECT_TRUE(std::has_virtual_destructor_v<::Modes>);
    EXPECT_TRUE(std::has_virtual_destructor_v<::Mode>);
    EXPECT_TRUE(std::has_virtual_destructor_v<::SecurityModes>);
    EXPECT_TRUE(std::has_virtual_destructor_v<::SecurityMode>);
    EXPECT_TRUE(std::has_virtual_destructor_v<::Chanbws>);
    EXPECT_TRUE(std::has_virtual_destructor_v<::Bws>);
}

TEST(CapabilityTree, HoldsEveryFieldOfADocument)
{
    const auto capabilities = tree(wholeDocument);
    EXPECT_EQ(texts(capabilities->getOperationModes()), lines({"ap", "sta"}));
    EXPECT_EQ(texts(capabilities->getStaPrefix()), lines({"sta0"}));
    EXPECT_EQ(texts(capabilities->getApPrefix()), lines({"ap0", "ap1"}));
    EXPECT_EQ(texts(capabilities->getWdsPrefix()), lines({"wds0", "wds1", "wds2"}));
    const auto lower = capabilities->getBand()->getGhz2400();
    EXPECT_EQ(lower->getText(), text("2.4 GHz"));
    EXPECT_EQ(lower->getDefaultMode(), text("bgn"));
    EXPECT_EQ(lower->getDefaultChannel(), text("auto"));
    const auto mode = lower->getModes()->getItems().at(0);
    EXPECT_EQ(mode->getText(), text("802.11 b/g/n"));
    EXPECT_EQ(mode->getDefaultChannelBw(), text("20"));
    EXPECT_EQ(names(mode->getSecurityModes()->getItems()), lines({"off", "wpa2"}));
    const auto width = mode->getChanbws()->getItems().at(0);
    EXPECT_EQ(width->getText(), text("20 MHz"));
    EXPECT_EQ(texts(width->getRates()), lines({"54M", "130M"}));
    const auto upper = capabilities->getBand()->getGhz5000();
    EXPECT_EQ(upper->getText(), text("5 GHz"));
    EXPECT_EQ(upper->getDefaultMode(), text("an"));
    EXPECT_EQ(upper->getDefaultChannel(), text("36"));
    const auto channel = upper->getChannels()->getItems().at(0);
    EXPECT_EQ(channel->getShow(), 1);
    EXPECT_EQ(channel->getDfs(), 2);
    EXPECT_EQ(channel->getZenPair(), 3);
    EXPECT_EQ(channel->getFreqVal(), 5260);
}

TEST(CapabilityTree, NamesEveryNodeByItsKeyAndTheRootByNone)
{
    const auto capabilities = tree(wholeDocument);
    const auto band = capabilities->getBand();
    const auto lower = band->getGhz2400();
    const auto mode = lower->getModes()->getItems().at(0);
    EXPECT_EQ(capabilities->getName(), QString());
    EXPECT_EQ(band->getName(), text("band"));
    EXPECT_EQ(lower->getName(), text("2400"));
    EXPECT_EQ(band->getGhz5000()->getName(), text("5000"));
    EXPECT_EQ(lower->getChannels()->getName(), text("channels"));
    EXPECT_EQ(lower->getChannels()->getItems().at(0)->getName(), text("1"));
    EXPECT_EQ(lower->getModes()->getName(), text("modes"));
    EXPECT_EQ(mode->getName(), text("bgn"));
    EXPECT_EQ(mode->getSecurityModes()->getName(), text("securityModes"));
    EXPECT_EQ(mode->getChanbws()->getName(), text("chanbws"));
    EXPECT_EQ(mode->getChanbws()->getItems().at(0)->getName(), text("20"));
}

TEST(CapabilityTree, KeepsTheObjectOfEveryNode)
{
    const auto capabilities = tree(wholeDocument);
    const auto lower = capabilities->getBand()->getGhz2400();
    const auto mode = lower->getModes()->getItems().at(0);
    EXPECT_EQ(capabilities->getData().value(text("vendor")).toString(), text("unread"));
    EXPECT_EQ(QStringList(capabilities->getBand()->getData().keys()), lines({"2400", "5000"}));
    EXPECT_EQ(QStringList(lower->getData().keys()),
              lines({"channels", "defaultChannel", "defaultMode", "modes", "text"}));
    EXPECT_EQ(QStringList(lower->getChannels()->getData().keys()), lines({"1"}));
    EXPECT_EQ(lower->getChannels()->getItems().at(0)->getData().value(text("freqVal")).toInt(),
              2412);
    EXPECT_EQ(QStringList(lower->getModes()->getData().keys()), lines({"bgn"}));
    EXPECT_EQ(QStringList(mode->getData().keys()),
              lines({"chanbws", "defaultChannelBw", "securityModes", "text"}));
    EXPECT_EQ(QStringList(mode->getSecurityModes()->getData().keys()), lines({"off", "wpa2"}));
    EXPECT_EQ(mode->getSecurityModes()->getItems().at(1)->getData().value(text("text")).toString(),
              text("WPA2"));
    EXPECT_EQ(QStringList(mode->getChanbws()->getData().keys()), lines({"20"}));
    EXPECT_EQ(QStringList(mode->getChanbws()->getItems().at(0)->getData().keys()),
              lines({"rates", "text"}));
}

TEST(CapabilityTree, IsEmptyOfAnEmptyDocument)
{
    const auto capabilities = tree("{}");
    EXPECT_EQ(capabilities->getOperationModes(), QVariantList());
    EXPECT_EQ(capabilities->getStaPrefix(), QVariantList());
    EXPECT_EQ(capabilities->getApPrefix(), QVariantList());
    EXPECT_EQ(capabilities->getWdsPrefix(), QVariantList());
    EXPECT_FALSE(capabilities->getBand());
}

TEST(CapabilityTree, HasOnlyTheBandsOfTheDocument)
{
    const auto band = tree("{'band':{'5000':{}}}")->getBand();
    EXPECT_FALSE(band->getGhz2400());
    EXPECT_TRUE(band->getGhz5000());
}

TEST(CapabilityTree, LeavesAThirdBandInTheDataOnly)
{
    const auto band = tree("{'band':{'6000':{'text':'6 GHz'}}}")->getBand();
    EXPECT_FALSE(band->getGhz2400());
    EXPECT_FALSE(band->getGhz5000());
    EXPECT_EQ(band->getData().value(text("6000")).toMap().value(text("text")).toString(),
              text("6 GHz"));
}

TEST(CapabilityTree, HasNoNodesBelowABandThatTellsNothing)
{
    const auto band = ghz("{}");
    EXPECT_EQ(band->getText(), QString());
    EXPECT_EQ(band->getDefaultMode(), QString());
    EXPECT_EQ(band->getDefaultChannel(), QString());
    EXPECT_FALSE(band->getChannels());
    EXPECT_FALSE(band->getModes());
}

TEST(CapabilityTree, OrdersChannelsByTheirNamesAsTexts)
{
    EXPECT_EQ(names(ghz("{'channels':{'2':{},'10':{},'1':{}}}")->getChannels()->getItems()),
              lines({"1", "10", "2"}));
}

TEST(CapabilityTree, LeavesOutChannelsThatAreNoObjects)
{
    const auto channels = ghz("{'channels':{'1':1,'2':'x','3':[{}],'4':null}}")->getChannels();
    ASSERT_TRUE(channels);
    EXPECT_EQ(channels->getItems().size(), 0);
    EXPECT_EQ(channels->getData().size(), 4);
}

TEST(CapabilityTree, LeavesOutItemsThatAreNoObjectsInEveryContainer)
{
    const auto modes = ghz("{'modes':{'a':5,'b':{'securityModes':{'off':'','wpa':{}},"
                           "'chanbws':{'20':[],'40':{}}}}}")
                           ->getModes();
    EXPECT_EQ(names(modes->getItems()), lines({"b"}));
    const auto mode = modes->getItems().at(0);
    EXPECT_EQ(names(mode->getSecurityModes()->getItems()), lines({"wpa"}));
    EXPECT_EQ(names(mode->getChanbws()->getItems()), lines({"40"}));
}

TEST(CapabilityTree, TakesANumberForAText)
{
    EXPECT_EQ(ghz("{'text':5}")->getText(), text("5"));
    EXPECT_EQ(ghz("{'defaultChannel':2.5}")->getDefaultChannel(), text("2.5"));
    EXPECT_EQ(ghz("{'defaultMode':true}")->getDefaultMode(), text("true"));
}

TEST(CapabilityTree, TakesDigitsForANumberAndOtherTextsForZero)
{
    const auto channels =
        ghz("{'channels':{'1':{'show':'7','dfs':'none','zenPair':true,'freqVal':2412.0}}}")
            ->getChannels();
    const auto channel = channels->getItems().at(0);
    EXPECT_EQ(channel->getShow(), 7);
    EXPECT_EQ(channel->getDfs(), 0);
    EXPECT_EQ(channel->getZenPair(), 1);
    EXPECT_EQ(channel->getFreqVal(), 2412);
}

TEST(CapabilityTree, HasZeroForTheNumbersThatAChannelLacks)
{
    const auto channel = ghz("{'channels':{'1':{'show':null}}}")->getChannels()->getItems().at(0);
    EXPECT_EQ(channel->getShow(), 0);
    EXPECT_EQ(channel->getDfs(), 0);
    EXPECT_EQ(channel->getZenPair(), 0);
    EXPECT_EQ(channel->getFreqVal(), 0);
}

TEST(CapabilityTree, LeavesFieldsOfTheWrongKindEmpty)
{
    const auto capabilities = tree("{'operationModes':'ap','apPrefix':{},'staPrefix':1,"
                                   "'wdsPrefix':null,'band':[{}]}");
    EXPECT_EQ(capabilities->getOperationModes(), QVariantList());
    EXPECT_EQ(capabilities->getApPrefix(), QVariantList());
    EXPECT_EQ(capabilities->getStaPrefix(), QVariantList());
    EXPECT_EQ(capabilities->getWdsPrefix(), QVariantList());
    EXPECT_FALSE(capabilities->getBand());
    EXPECT_FALSE(tree("{'band':'2400'}")->getBand());
    EXPECT_FALSE(tree("{'band':{'2400':[]}}")->getBand()->getGhz2400());
    const auto band = ghz("{'text':{},'defaultMode':[],'channels':[],'modes':'x'}");
    EXPECT_EQ(band->getText(), QString());
    EXPECT_EQ(band->getDefaultMode(), QString());
    EXPECT_FALSE(band->getChannels());
    EXPECT_FALSE(band->getModes());
    const auto mode = ghz("{'modes':{'n':{'securityModes':[],'chanbws':1,'text':{}}}}")
                          ->getModes()
                          ->getItems()
                          .at(0);
    EXPECT_FALSE(mode->getSecurityModes());
    EXPECT_FALSE(mode->getChanbws());
    EXPECT_EQ(mode->getText(), QString());
    const auto widths = ghz("{'modes':{'n':{'chanbws':{'20':{'rates':'54M','text':[]}}}}}")
                            ->getModes()
                            ->getItems()
                            .at(0)
                            ->getChanbws()
                            ->getItems();
    EXPECT_EQ(widths.at(0)->getRates(), QVariantList());
    EXPECT_EQ(widths.at(0)->getText(), QString());
}

TEST(CapabilityTree, TakesWhateverConvertsToWhatIsWanted)
{
    Mode mode;
    mode.setData({{text("text"), QByteArray("802.11 n")},
                  {text("chanbws"),
                   QVariantHash{{text("20"), QVariantHash{{text("rates"), lines({"54M"})}}}}}});
    mode.parse();
    EXPECT_EQ(mode.getText(), text("802.11 n"));
    ASSERT_TRUE(mode.getChanbws());
    ASSERT_EQ(names(mode.getChanbws()->getItems()), lines({"20"}));
    EXPECT_EQ(texts(mode.getChanbws()->getItems().at(0)->getRates()), lines({"54M"}));
}

TEST(CapabilityTree, OutlivesItsRootWhereAHostKeepsANode)
{
    const auto modes = ghz("{'modes':{'n':{'text':'802.11 n'}}}")->getModes();
    EXPECT_EQ(modes->getItems().at(0)->getText(), text("802.11 n"));
}

TEST(CapabilityTree, IsMadeByAHostThatParsesANodeItself)
{
    Modes modes;
    modes.setName(text("mine"));
    modes.setData({{text("n"), QVariantMap{{text("text"), text("802.11 n")}}}});
    EXPECT_EQ(modes.getItems().size(), 0);
    modes.parse();
    modes.parse();
    EXPECT_EQ(modes.getName(), text("mine"));
    EXPECT_EQ(names(modes.getItems()), lines({"n"}));
}

} // namespace quorvel::test
