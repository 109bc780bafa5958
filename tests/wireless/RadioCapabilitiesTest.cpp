#include "wireless/WirelessFixture.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

/// A newer radio and the document by which it tells what it can do.
class RadioCapabilities : public WirelessRadios
{
protected:
    void tell(const QString& value, const char* error = "0")
    {
        gateway.reply(
            reply101({{"wireless-0", "wireless_capabilities", value}, {"webapp", "error", error}}));
    }

    /// The same with bytes that a text can't hold, and with nothing escaped.
    void tellBytes(const QByteArray& value)
    {
        gateway.sendRaw(httpReply("<response version=\"1.0.1\"><wireless-0>"
                                  "<key>wireless_capabilities</key><value>" +
                                  value + "</value></wireless-0></response>"));
    }

    /// Fetches a document of the gateway, given as JSON.
    boost::shared_ptr<Capabilities> fetch(const QString& json)
    {
        tell(json + QLatin1Char('\n'));
        EXPECT_FALSE(newer->getWirelessCapabilities(error));
        return newer->getCapabilities();
    }

    void tellTxMode(const char* mode)
    {
        gateway.reply(reply101({{"wireless-0", "txmode", mode}, {"webapp", "error", "3"}}));
    }

    void tellLink(const char* name, const char* mac, const char* enabled, const char* error = "0")
    {
        const QByteArray macKey = QByteArray(name) + "_mac";
        const QByteArray enabledKey = QByteArray(name) + "_enabled";
        gateway.reply(reply101({{"wireless-0", macKey.constData(), mac},
                                {"wireless-0", enabledKey.constData(), enabled},
                                {"webapp", "error", error}}));
    }
};

const QString twoBands = text(R"({"wdsPrefix": ["a", 5, {}], "band": {
    "2400": {"modes": {"bgn": {"securityModes": {"wpa_both": {}, "off": {}, "old": 1}},
                       "b": {"securityModes": {"wep": {}}}, "g": {}}},
    "5000": {"modes": {"an": {"securityModes": {"wpa2": {}}}}}}})");

} // namespace

TEST_F(RadioCapabilities, AreReadFromTheGatewaysDocument)
{
    tell(text(R"({"operationModes": ["ap"], "band": {"5000": {"text": "5 GHz"}}};)"), "3");
    EXPECT_FALSE(newer->getWirelessCapabilities(error));
    EXPECT_EQ(error, 3);
    const auto capabilities = newer->getCapabilities();
    ASSERT_TRUE(capabilities);
    EXPECT_EQ(capabilities->getName(), QString());
    EXPECT_EQ(capabilities->getOperationModes(), QVariantList{text("ap")});
    EXPECT_EQ(capabilities->getBand()->getGhz5000()->getText(), text("5 GHz"));
    EXPECT_EQ(ownLines(), lines({"DEBUG AspWirelessSettingsFacadeNG::isSecurityProxyEnabled -> "
                                 "Security Proxy: "}));
}

TEST_F(RadioCapabilities, LoseTheirLastCharacterWhateverItIs)
{
    tell(text(R"({"apPrefix": ["ap0"]})"));
    EXPECT_FALSE(newer->getWirelessCapabilities(error));
    EXPECT_EQ(newer->getCapabilities()->getApPrefix(), QVariantList());
    tell(text(R"({"apPrefix": ["ap0"]}x)"));
    EXPECT_FALSE(newer->getWirelessCapabilities(error));
    EXPECT_EQ(newer->getCapabilities()->getApPrefix(), QVariantList{text("ap0")});
}

TEST_F(RadioCapabilities, KeepTextsBeyondAscii)
{
    EXPECT_EQ(fetch(text(R"({"band": {"2400": {"text": "2,4 GHz – größer"}}})"))
                  ->getBand()
                  ->getGhz2400()
                  ->getText(),
              text("2,4 GHz – größer"));
}

TEST_F(RadioCapabilities, AreEmptyOfATextThatIsNotJson)
{
    fetch(twoBands);
    for (const char* document : {"", "x", "band", "{\"band\":", "[1, 2]", "5", "<html>", "null"}) {
        const auto capabilities = fetch(text(document));
        ASSERT_TRUE(capabilities) << document;
        EXPECT_EQ(capabilities->getData(), QVariantMap()) << document;
        EXPECT_EQ(capabilities->getWdsPrefix(), QVariantList()) << document;
        EXPECT_FALSE(capabilities->getBand()) << document;
        EXPECT_EQ(error, 0);
    }
}

TEST_F(RadioCapabilities, TakeTheLastValueOfARepeatedKey)
{
    const char* const document =
        R"({"wdsPrefix": [1, 2], "band": {"2400": {}, "5000": {"text": "a", "text" : "b"}}, )"
        R"("apPrefix": [{"b \" c": [1], "b \" c": 3, "b \" c": 2}], "wdsPrefix": [3], )"
        R"("b\u0061nd": {"2400": {"text": "c,}"}, "": 1, "": []}})";
    const auto capabilities = fetch(text(document));
    EXPECT_EQ(capabilities->getWdsPrefix(), QVariantList{3});
    EXPECT_EQ(capabilities->getApPrefix(), (QVariantList{QVariantMap{{text("b \" c"), 2}}}));
    EXPECT_EQ(capabilities->getBand()->getData(),
              (QVariantMap{{text("2400"), QVariantMap{{text("text"), text("c,}")}}},
                           {QString(), QVariantList()}}));
}

TEST_F(RadioCapabilities, MayRepeatAKeyInAnotherObject)
{
    const char* const document =
        R"({"band": {"2400": {"text": "band", "modes": {"text": {}}}, "5000": {"text": "text"}},
            "apPrefix": ["band", "band"], "wdsPrefix": ["a:", "{", {"band": "wdsPrefix"}]})";
    const auto capabilities = fetch(text(document));
    EXPECT_EQ(capabilities->getWdsPrefix().size(), 3);
    EXPECT_EQ(capabilities->getBand()->getGhz5000()->getText(), text("text"));
}

TEST_F(RadioCapabilities, AreEmptyIfTheGatewayTellsNone)
{
    gateway.reply(reply101({{"webapp", "error", "4"}}));
    EXPECT_FALSE(newer->getWirelessCapabilities(error));
    EXPECT_EQ(error, 4);
    ASSERT_TRUE(newer->getCapabilities());
    EXPECT_FALSE(newer->getCapabilities()->getBand());
}

TEST_F(RadioCapabilities, StayTheOldOnesIfTheRequestFails)
{
    const auto old = fetch(twoBands);
    log.clear();
    gateway.sendRaw(failedReply);
    EXPECT_FALSE(newer->getWirelessCapabilities(error));
    EXPECT_EQ(error, 29);
    EXPECT_EQ(newer->getCapabilities(), old);
    EXPECT_EQ(ownLines(), lines({"ERROR AspWirelessSettingsFacadeNG::isSecurityProxyEnabled -> "
                                 "Failed to fetch proxy status!"}));
}

TEST_F(RadioCapabilities, AreLeftAloneByALaterFetchWhereTheHostHoldsThem)
{
    const auto held = fetch(text(R"({"band": {"2400": {"text": "first"}}})"));
    const auto later = fetch(text(R"({"band": {"2400": {"text": "second"}}})"));
    EXPECT_NE(held, later);
    EXPECT_EQ(held->getBand()->getGhz2400()->getText(), text("first"));
    EXPECT_EQ(later->getBand()->getGhz2400()->getText(), text("second"));
}

TEST_F(RadioCapabilities, AreReplacedByTheHost)
{
    const auto mine = boost::make_shared<Capabilities>();
    newer->setCapabilities(mine);
    EXPECT_EQ(newer->getCapabilities(), mine);
    newer->setCapabilities(boost::shared_ptr<Capabilities>());
    EXPECT_FALSE(newer->getCapabilities());
}

TEST_F(RadioCapabilities, NameTheSecurityModesOfTheCurrentTransmitMode)
{
    fetch(twoBands);
    log.clear();
    const std::pair<int, const char*> bands[] = {
        {0, "off,wpa_both"}, {1, ""}, {2, "off,wpa_both"}, {-1, "off,wpa_both"}};
    for (const auto& [band, modes] : bands) {
        tellTxMode("bgn");
        EXPECT_EQ(shown(newer->getSupportSecurityModes(band)), text(modes)) << band;
    }
    tellTxMode("an");
    EXPECT_EQ(newer->getSupportSecurityModes(1), lines({"wpa2"}));
    EXPECT_EQ(ownLines().mid(0, 1),
              lines({"DEBUG AspWirelessSettingsFacadeNG::getTxMode -> TxMode:bgn"}));
    EXPECT_TRUE(matchesGolden(text("wireless/newer/facadeSecurityModes"),
                              transcript(gateway.requests().last())));
}

TEST_F(RadioCapabilities, NameNoSecurityModesOfAnUnknownTransmitMode)
{
    fetch(text(R"({"band": {"2400": {"modes": {"": {"securityModes": {"off": {}}},
                                               "g": {}}}}})"));
    for (const char* mode : {"n", "G", "g", ""}) {
        tellTxMode(mode);
        EXPECT_EQ(newer->getSupportSecurityModes(0), QStringList()) << mode;
    }
}

TEST_F(RadioCapabilities, NameNoSecurityModesIfTheTransmitModeCannotBeRead)
{
    fetch(twoBands);
    log.clear();
    gateway.sendRaw(failedReply);
    EXPECT_EQ(newer->getSupportSecurityModes(0), QStringList());
    EXPECT_EQ(ownLines(),
              lines({"ERROR AspWirelessSettingsFacadeNG::getTxMode -> Failed to fetch TxMode!"}));
}

TEST_F(RadioCapabilities, NameNoSecurityModesWhereTheTreeEnds)
{
    tellTxMode("bgn");
    EXPECT_EQ(newer->getSupportSecurityModes(0), QStringList());
    for (const char* document :
         {"{}", R"({"band": {}})", R"({"band": {"2400": {}, "5000": {}}})",
          R"({"band": {"2400": {"modes": {}}, "5000": {"modes": {}}}})",
          R"({"band": {"2400": {"modes": {"bgn": {}}}, "5000": {"modes": {"bgn": {}}}}})"}) {
        fetch(text(document));
        for (const int band : {0, 1}) {
            tellTxMode("bgn");
            EXPECT_EQ(newer->getSupportSecurityModes(band), QStringList()) << document;
        }
    }
}

TEST_F(RadioCapabilities, TellHowManyMeshLinksAreAskedFor)
{
    fetch(twoBands);
    log.clear();
    tellLink("wds0", "00:00:5e:00:53:01", "1");
    tellLink("wds1", "", "1");
    tellLink("wds2", "00:00:5e:00:53:03", "yes", "3");
    EXPECT_EQ(shown(newer->getWirelessMeshInstances(error)),
              text("00:00:5e:00:53:01 on,00:00:5e:00:53:03 off"));
    EXPECT_EQ(error, 3);
    EXPECT_EQ(ownLines(),
              lines({"DEBUG AspWirelessSettingsFacade::getWirelessClientMacList -> Client MAC "
                     "List:00:00:5e:00:53:01\n00:00:5e:00:53:03\n"}));
    EXPECT_TRUE(matchesGolden(text("wireless/newer/facadeMeshInstances"), transcript(gateway)));
}

TEST_F(RadioCapabilities, LeaveOutAMeshLinkThatCannotBeRead)
{
    fetch(twoBands);
    gateway.sendRaw(failedReply);
    tellLink("wds1", "00:00:5e:00:53:02", "1");
    gateway.sendRaw(failedReply);
    EXPECT_EQ(shown(newer->getWirelessMeshInstances(error)), text("00:00:5e:00:53:02 on"));
    EXPECT_EQ(error, 29);
}

TEST_F(RadioCapabilities, AskForNoMeshLinksWithoutABand)
{
    EXPECT_EQ(shown(newer->getWirelessMeshInstances(error)), QString());
    EXPECT_EQ(error, 0);
    for (const char* document :
         {"{}", R"({"wdsPrefix": ["a", "b"]})", R"({"wdsPrefix": ["a"], "band": 5})",
          R"({"wdsPrefix": [], "band": {}})", R"({"wdsPrefix": 3, "band": {}})"}) {
        fetch(text(document));
        const int connections = gateway.connections();
        EXPECT_EQ(shown(newer->getWirelessMeshInstances(error)), QString()) << document;
        EXPECT_EQ(error, 0);
        EXPECT_EQ(gateway.connections(), connections) << document;
    }
    EXPECT_EQ(ownLines().last(), text("DEBUG AspWirelessSettingsFacade::getWirelessClientMacList "
                                      "-> Client MAC List:"));
}

TEST_F(RadioCapabilities, SurviveBytesThatAreNoText)
{
    tellBytes("{\"band\": {\"24\xff\xc0\": {}, \"5000\": "
              "{\"text\": \"\xfe\x80 5 GHz\", \"modes\": {\"\xed\xa0\x80\": {}}}}};");
    EXPECT_FALSE(newer->getWirelessCapabilities(error));
    EXPECT_EQ(error, 0);
    const auto band = newer->getCapabilities()->getBand();
    ASSERT_TRUE(band);
    EXPECT_FALSE(band->getGhz2400());
    EXPECT_TRUE(band->getGhz5000()->getText().endsWith(text(" 5 GHz")));
    EXPECT_EQ(band->getGhz5000()->getModes()->getItems().size(), 1);
}

TEST_F(RadioCapabilities, AreEmptyOfADocumentThatBreaksOffAnywhere)
{
    QString document = twoBands;
    const auto whole = fetch(document);
    EXPECT_EQ(whole->getBand()->getData().size(), 2);
    while (document.size() > 1) {
        document.chop(qMin(17, document.size() - 1));
        EXPECT_EQ(fetch(document)->getData(), QVariantMap()) << document.toStdString();
    }
}

TEST_F(RadioCapabilities, ArePartialOfADocumentWithWrongTypesEverywhere)
{
    const auto capabilities =
        fetch(text(R"({"operationModes": 1, "apPrefix": {}, "wdsPrefix": "x", "staPrefix": null,
        "band": {"2400": [], "5000": {"text": [], "defaultMode": {}, "defaultChannel": null,
            "channels": {"1": 1, "2": {"show": {}, "dfs": [], "zenPair": null, "freqVal": "x"}},
            "modes": {"a": null, "b": {"text": {}, "defaultChannelBw": [], "securityModes": [1],
                "chanbws": {"20": "x", "40": {"text": {}, "rates": 5}}}}}}})"));
    EXPECT_EQ(capabilities->getWdsPrefix(), QVariantList());
    EXPECT_FALSE(capabilities->getBand()->getGhz2400());
    const auto band = capabilities->getBand()->getGhz5000();
    EXPECT_EQ(band->getText(), QString());
    ASSERT_EQ(band->getChannels()->getItems().size(), 1);
    EXPECT_EQ(band->getChannels()->getItems().at(0)->getFreqVal(), 0);
    ASSERT_EQ(band->getModes()->getItems().size(), 1);
    const auto mode = band->getModes()->getItems().at(0);
    EXPECT_FALSE(mode->getSecurityModes());
    ASSERT_EQ(mode->getChanbws()->getItems().size(), 1);
    EXPECT_EQ(mode->getChanbws()->getItems().at(0)->getRates(), QVariantList());
    tellTxMode("b");
    EXPECT_EQ(newer->getSupportSecurityModes(1), QStringList());
    EXPECT_EQ(shown(newer->getWirelessMeshInstances(error)), QString());
}

TEST_F(RadioCapabilities, AreReadFromALargeDocument)
{
    QByteArray channels;
    for (int i = 0; i < 20000; ++i)
        channels += (i == 0 ? "\"" : ", \"") + QByteArray::number(i) +
                    "\": {\"freqVal\": " + QByteArray::number(i) + "}";
    tellBytes("{\"band\": {\"5000\": {\"channels\": {" + channels + "}}}};");
    EXPECT_FALSE(newer->getWirelessCapabilities(error));
    EXPECT_EQ(error, 0);
    const auto capabilities = newer->getCapabilities();
    ASSERT_TRUE(capabilities && capabilities->getBand());
    const auto items = capabilities->getBand()->getGhz5000()->getChannels()->getItems();
    EXPECT_EQ(items.size(), 20000);
    EXPECT_EQ(items.at(0)->getName(), text("0"));
    EXPECT_EQ(items.at(1)->getFreqVal(), 1);
    EXPECT_EQ(items.at(2)->getFreqVal(), 10);
}

} // namespace quorvel::test
