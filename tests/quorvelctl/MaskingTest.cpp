#include "Masking.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

namespace quorvelctl::test
{

namespace
{

std::string masked(const char* xml)
{
    return maskedXml(QString::fromUtf8(xml)).toStdString();
}

} // namespace

TEST(Masking, HidesSecretsUnderTheirOwnNames)
{
    EXPECT_EQ(masked("<response><pppox-0><username>ada</username><password>x1</password>"
                     "</pppox-0></response>"),
              "<response><pppox-0><username>ada</username><password>********</password>"
              "</pppox-0></response>");
}

TEST(Masking, HidesSecretsUnderAKey)
{
    EXPECT_EQ(masked("<vpn-0>\n <key>password-0</key>\n <value>x1</value></vpn-0>"
                     "<vpn-0><key>server</key><value>vpn.example.net</value></vpn-0>"),
              "<vpn-0>\n <key>password-0</key>\n <value>********</value></vpn-0>"
              "<vpn-0><key>server</key><value>vpn.example.net</value></vpn-0>");
}

TEST(Masking, HidesWhatIsQuotedAsAWhole)
{
    EXPECT_EQ(masked("<puk><![CDATA[1<2]]>3</puk>"), "<puk>********</puk>");
}

TEST(Masking, LeavesEmptySecretsEmpty)
{
    EXPECT_EQ(masked("<pin></pin><key>pin</key><value></value><apn>net</apn>"),
              "<pin></pin><key>pin</key><value></value><apn>net</apn>");
}

TEST(Masking, KnowsSecretsByTheirKeys)
{
    for (const char* key : {"password", "password-0", "wpaPassword", "ap0_wpa_password", "wep_key1",
                            "wepKey4", "ap0_wep_key2", "wpa_radius_key", "radiusKey", "usertoken",
                            "pin", "sim.puk", "VoiceService.VoiceProfile.Line[0].SIP.AuthPassword"})
        EXPECT_TRUE(isSecretKey(QString::fromLatin1(key))) << key;
    for (const char* key : {"username-0", "wep_key_index", "ap0_wep_keytype", "wpa_rekey_interval",
                            "simpin_status", "pins", "key", "ssid"})
        EXPECT_FALSE(isSecretKey(QString::fromLatin1(key))) << key;
}

TEST(Masking, HidesSecretsInResults)
{
    const QJsonObject result{
        {QStringLiteral("wifi"),
         QJsonArray{QJsonObject{{QStringLiteral("ssid"), QStringLiteral("attic")},
                                {QStringLiteral("wepKey1"), QStringLiteral("x")},
                                {QStringLiteral("wepKey2"), QString()}}}}};
    EXPECT_EQ(QJsonDocument(quorvelctl::masked(result).toObject()).toJson(QJsonDocument::Compact),
              R"({"wifi":[{"ssid":"attic","wepKey1":"********","wepKey2":""}]})");
}

} // namespace quorvelctl::test
