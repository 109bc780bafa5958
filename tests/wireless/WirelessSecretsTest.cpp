#include <quorvel/AspWirelessSettingsFacadeManager.h>

#include "protocol/AspCpeSessionStorage.h"
#include "wireless/WirelessFixture.h"

namespace quorvel::test
{

namespace
{

/// All operations on radios, with a gateway whose every key, password and shared secret has the
/// word "secret" in it, as the administrator's password has.
class WirelessSecrets : public WirelessRadios
{
protected:
    void SetUp() override
    {
        WirelessRadios::SetUp();
        settings = wholeRecord("wpa_both");
        settings.wpaPassword = text("secret phrase");
        settings.wpaRadiusKey = text("radius secret");
        for (QString& key : settings.wepKeys)
            key = text("secret key");
        gateway.reply(text("<response/>"));
        manager = AspWirelessSettingsFacadeManager(cpe, lines({"wireless_core-0", "wireless-0"}));
    }

    /// Every operation of every facade, each after `prepare` has scripted an answer for it.
    template <typename Prepare>
    void callAll(Prepare prepare);

    AspWirelessSettings settings;
    AspWirelessSettingsFacadeManager manager{boost::shared_ptr<Cpe>(), {}};
};

/// A reply with a secret in every entry that holds one.
QString tellingAll()
{
    QString reply = text("<response version=\"1.0.1\">");
    const auto add = [&reply](const char* object, const char* key, const char* value) {
        reply += text("<%1><key>%2</key><value>%3</value></%1>")
                     .arg(text(object), text(key), text(value));
    };
    for (const char* key :
         {"wep_key1", "wep_key2", "wep_key3", "wep_key4", "wpa_password", "wpa_radius_key"}) {
        add("wireless_ap-0", key, "a secret");
        add("wireless-0", (QByteArray("ap0_") + key).constData(), "a secret");
    }
    add("wireless_ap-0", "ssid", "Home");
    add("wireless-0", "ap0_ssid", "Home");
    return reply + text("</response>");
}

template <typename Prepare>
void WirelessSecrets::callAll(Prepare prepare)
{
    AspWirelessSettingsFacadeImplementor* const radios[] = {older.get(), newer.get()};
    for (AspWirelessSettingsFacadeImplementor* radio : radios) {
        const bool isOlder = radio == older.get();
        const auto asked = [&](bool sends) {
            if (sends)
                prepare();
            return radio;
        };
        asked(isOlder)->checkWirelessStatus(error);
        asked(true)->checkWpsEnabledStatus(error);
        asked(isOlder)->setWpsEnabledStatus(true, error);
        asked(true)->getWpsRole(error);
        asked(true)->isSecurityProxyEnabled(error);
        asked(true)->getWirelessSettings(error);
        asked(isOlder)->setWirelessSettings(AspWirelessEnabled, settings, error);
        const QString query = radio->getWirelessSettingsQuery(AspWirelessEnabled, settings, error);
        EXPECT_TRUE(query.contains(text("secret phrase")));
        asked(true)->setWirelessQuery(query, error);
        asked(isOlder)->getWirelessClientMacList(error);
        asked(isOlder)->getWirelessMeshInstances(error);
        asked(true)->isWirelessSecurityEnabled(error);
        asked(!isOlder)->getWirelessCapabilities(error);
        asked(!isOlder)->getSupportSecurityModes(0);
    }
    manager.setManagerId(0);
    prepare();
    manager.getWirelessSettings(0, error);
    prepare();
    manager.setWirelessSettings(AspWirelessEnabled, settings, error);
    settings.securityMode = text("wep");
    prepare();
    manager.setWirelessSettings({settings, settings}, error);
}

QStringList revealing(const QStringList& lines)
{
    return lines.filter(text("secret"), Qt::CaseInsensitive);
}

} // namespace

TEST_F(WirelessSecrets, AreInNoLineOfAnyOperationThatSucceeds)
{
    callAll([&] { gateway.reply(tellingAll()); });
    EXPECT_GE(log.lines().size(), 15);
    EXPECT_EQ(revealing(log.lines()), QStringList());
    // They did come and go.
    gateway.reply(tellingAll());
    EXPECT_EQ(older->getWirelessSettings(error).wpaPassword, text("a secret"));
    EXPECT_TRUE(transcript(gateway).contains(text("\"wpa_password\" \"secret phrase\"")));
    EXPECT_TRUE(transcript(gateway).contains(text("\"wep_key1\" \"secret key\"")));
}

TEST_F(WirelessSecrets, AreInNoLineOfAnyOperationThatFails)
{
    const QByteArray refusal = httpReply("a secret page").replace("200 OK", "500 a secret");
    callAll([&] { gateway.sendRaw(refusal); });
    EXPECT_GE(log.lines().size(), 15);
    EXPECT_EQ(revealing(log.lines()), QStringList());
}

TEST_F(WirelessSecrets, AreInNoLineOfAnyOperationThatGetsAnUnreadableReply)
{
    callAll([&] { gateway.reply(text("<response><a secret></response>")); });
    EXPECT_GE(log.lines().size(), 15);
    EXPECT_EQ(revealing(log.lines()), QStringList());
}

TEST_F(WirelessSecrets, AreInNoLineOfAnyOperationThatLogsIn)
{
    callAll([&] {
        AspCpeSessionStorage::getInstance()->removeSession(gateway.address());
        gateway.logIn().reply(tellingAll());
    });
    EXPECT_GE(log.lines().size(), 15);
    EXPECT_EQ(revealing(log.lines()), QStringList());
}

} // namespace quorvel::test
