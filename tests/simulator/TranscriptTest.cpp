#include "SimulatedGateway.h"

namespace quorvel::simulator::tests
{

using testing::HasSubstr;
using testing::Not;

class TranscriptTest : public SimulatedGateway
{
};

TEST_F(TranscriptTest, ShowsEachRequestAndItsReply)
{
    gateway.clearExchanges();
    RawClient client(gateway.port());
    client.send("POST /cgi-bin/webapp HTTP/1.1\r\nHost: gateway\r\nCookie: " + cookie +
                "\r\nContent-Length: 116\r\n\r\n"
                "<xmlrequest version=\"1.0.1\">\n <query inst=\"conn-0\">\n  <key>hostname</key>\n"
                "  <value></value>\n </query>\n</xmlrequest>\n");
    client.readReply();
    EXPECT_EQ(gateway.transcript(), "==== 1: POST /cgi-bin/webapp\n"
                                    "POST /cgi-bin/webapp HTTP/1.1\n"
                                    "Host: gateway\n"
                                    "Cookie: SID=********\n"
                                    "Content-Length: 116\n"
                                    "\n"
                                    "<xmlrequest version=\"1.0.1\">\n"
                                    " <query inst=\"conn-0\">\n"
                                    "  <key>hostname</key>\n"
                                    "  <value></value>\n"
                                    " </query>\n"
                                    "</xmlrequest>\n"
                                    "---- reply\n"
                                    "HTTP/1.1 200 OK\n"
                                    "Content-Type: text/xml\n"
                                    "Content-Length: 132\n"
                                    "\n"
                                    "<response version=\"1.0.1\">\n"
                                    "<conn-0><key>hostname</key><value>gateway</value></conn-0>\n"
                                    "<webapp><error>0</error></webapp>\n"
                                    "</response>\n"
                                    "\n");
}

TEST_F(TranscriptTest, MasksTheLogin)
{
    const std::string text = gateway.transcript();
    EXPECT_THAT(text, HasSubstr("\nuser=admin&password=********\n"));
    EXPECT_THAT(text, HasSubstr("\nSet-Cookie: SID=********; path=/\n"));
    EXPECT_THAT(text, Not(HasSubstr(cookie)));
}

TEST_F(TranscriptTest, MasksEveryCookieAndWhateverElseLogsIn)
{
    EXPECT_EQ(toTranscript({{"GET", "/",
                             "GET / HTTP/1.1\r\nCookie: theme=S3CRET; SID=S3CRET;S3CRET\r\n"
                             "authorization: Basic S3CRET\r\n"
                             "Proxy-Authorization: Basic S3CRET\r\nX-Cookie: a=b\r\n",
                             "",
                             "HTTP/1.1 200 OK\r\nSet-Cookie: SID=S3CRET; path=/; HttpOnly\r\n"
                             "Set-Cookie: S3CRET\r\n",
                             "", ""}}),
              "==== 1: GET /\nGET / HTTP/1.1\n"
              "Cookie: theme=********; SID=********; ********\n"
              "authorization: ********\nProxy-Authorization: ********\nX-Cookie: a=b\n\n"
              "---- reply\nHTTP/1.1 200 OK\nSet-Cookie: SID=********; path=/; HttpOnly\n"
              "Set-Cookie: ********\n\n\n");
}

TEST_F(TranscriptTest, MasksSecretsInRequests)
{
    send({"set a password S3CRET", "set a wpa_password S3CRET", "set a wep_key1 S3CRET",
          "set a password-0 S3CRET", "set a pin S3CRET", "set a puk S3CRET", "set a token S3CRET",
          "set a usertoken S3CRET", "set a wpa_radius_key S3CRET", "set a ap0_wpa_password S3CRET",
          "set a VoiceService.VoiceProfile.Line[0].SIP.AuthPassword S3CRET",
          "command webui-0 check_admin_password S3CRET", "command webui-0 check_session S3CRET",
          "set a ssid shown"});
    const std::string text = gateway.transcript();
    EXPECT_THAT(text, Not(HasSubstr("S3CRET")));
    EXPECT_THAT(text, HasSubstr("<key>wep_key1</key><value>********</value>"));
    EXPECT_THAT(text, HasSubstr("<key>ssid</key><value>shown</value>"));
}

TEST_F(TranscriptTest, MasksSecretsInReplies)
{
    gateway.setValue("pppox-0", "password", "S3CRET");
    EXPECT_THAT(send({"get pppox-0 settings"}), HasSubstr("S3CRET"));
    EXPECT_THAT(gateway.transcript(), Not(HasSubstr("S3CRET")));
    EXPECT_EQ(toTranscript({{"POST", "/", "", "", "HTTP/1.1 200 OK\r\n",
                             "<a-0><wep_key1>S3CRET</wep_key1><ssid>x</ssid></a-0>", ""}}),
              "==== 1: POST /\n\n---- reply\nHTTP/1.1 200 OK\n\n"
              "<a-0><wep_key1>********</wep_key1><ssid>x</ssid></a-0>\n\n");
}

TEST_F(TranscriptTest, NamesTheFaultAndShowsWhatWasCut)
{
    gateway.clearExchanges();
    gateway.setFault(*Fault::fromText("truncate"));
    send({"get conn-0 hostname"});
    gateway.setFault(*Fault::fromText("close"));
    send({"get conn-0 hostname"});
    const auto exchanges = gateway.exchanges();
    ASSERT_EQ(exchanges.size(), 2U);
    EXPECT_EQ(exchanges[0].fault, "truncate");
    EXPECT_EQ(exchanges[0].replyBody,
              "<response version=\"1.0.1\">\n<conn-0><key>hostname</key><value>gatew");
    EXPECT_EQ(exchanges[1].fault, "close");
    EXPECT_EQ(exchanges[1].replyHead, "");
    EXPECT_EQ(exchanges[1].replyBody, "");
    EXPECT_THAT(gateway.transcript(), HasSubstr("---- reply (fault: truncate)\n"));
}

TEST_F(TranscriptTest, ShowsUnreadableBytesAsNumbers)
{
    gateway.setFault(*Fault::fromText("garbage"));
    send({"get conn-0 hostname"});
    const std::string text = gateway.transcript();
    for (const char c : text)
        ASSERT_TRUE(static_cast<unsigned char>(c) >= 0x20 || c == '\n' || c == '\t');
}

TEST_F(TranscriptTest, ExchangesHoldTheSecrets)
{
    const auto exchanges = gateway.exchanges();
    ASSERT_EQ(exchanges.size(), 1U);
    EXPECT_EQ(exchanges[0].method, "POST");
    EXPECT_EQ(exchanges[0].path, "/cgi-bin/login");
    EXPECT_EQ(exchanges[0].requestBody, "user=admin&password=admin");
    EXPECT_THAT(exchanges[0].replyHead, HasSubstr("Set-Cookie: " + cookie + "; path=/\r\n"));
}

TEST_F(TranscriptTest, KeepsTheNewestExchanges)
{
    gateway.setRecordLimit(2);
    for (const char* line : {"get conn-0 a", "get conn-0 b", "get conn-0 c"})
        send({line});
    const auto exchanges = gateway.exchanges();
    ASSERT_EQ(exchanges.size(), 2U);
    EXPECT_THAT(exchanges[0].requestBody, HasSubstr("<key>b</key>"));
    EXPECT_THAT(exchanges[1].requestBody, HasSubstr("<key>c</key>"));
    EXPECT_EQ(gateway.requestCount(), 4U);
    gateway.setRecordLimit(0);
    send({"get conn-0 d"});
    EXPECT_TRUE(gateway.exchanges().empty());
}

} // namespace quorvel::simulator::tests
