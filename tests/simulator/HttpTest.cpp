#include "SimulatedGateway.h"

namespace quorvel::simulator::tests
{

class HttpTest : public SimulatedGateway
{
protected:
    std::unique_ptr<RawClient> ask(const std::string& bytes)
    {
        auto client = std::make_unique<RawClient>(gateway.port());
        client->send(bytes);
        client->readReply();
        return client;
    }

    int statusOf(const std::string& bytes) { return ask(bytes)->status(); }
};

TEST_F(HttpTest, AnswersAProbe)
{
    const auto client = ask("GET / HTTP/1.1\r\nHost: gateway\r\n\r\n");
    EXPECT_EQ(client->status(), 200);
    EXPECT_EQ(client->header("Content-Type"), "text/html");
    EXPECT_FALSE(client->body().empty());
}

TEST_F(HttpTest, AnswersAHeadWithoutABody)
{
    RawClient client(gateway.port());
    client.send("HEAD / HTTP/1.1\r\nConnection: close\r\n\r\n");
    client.readToEnd();
    EXPECT_EQ(client.status(), 200);
    EXPECT_EQ(client.body(), "");
    EXPECT_EQ(client.ending(), Ending::Closed);
}

TEST_F(HttpTest, RefusesWhatAGatewayHasNot)
{
    EXPECT_EQ(statusOf("GET /secret HTTP/1.1\r\n\r\n"), 404);
    EXPECT_EQ(statusOf(post("/cgi-bin/other", "", cookie)), 404);
    EXPECT_EQ(statusOf("GET /cgi-bin/webapp HTTP/1.1\r\n\r\n"), 405);
    EXPECT_EQ(statusOf("GET /cgi-bin/login HTTP/1.1\r\n\r\n"), 405);
    EXPECT_EQ(statusOf(post("/", "")), 405);
    EXPECT_EQ(ask("GET /cgi-bin/webapp HTTP/1.1\r\n\r\n")->header("Allow"), "POST");
}

TEST_F(HttpTest, RefusesWhatIsNoHttp)
{
    EXPECT_EQ(statusOf("hello\r\n\r\n"), 400);
    EXPECT_EQ(statusOf("GET / HTTP/2.0\r\n\r\n"), 400);
    EXPECT_EQ(statusOf("GET  HTTP/1.1\r\n\r\n"), 400);
    EXPECT_EQ(statusOf("GET / HTTP/1.1\r\nno colon\r\n\r\n"), 400);
    EXPECT_EQ(statusOf("POST / HTTP/1.1\r\nContent-Length: -1\r\n\r\n"), 400);
    EXPECT_EQ(statusOf("POST / HTTP/1.1\r\n\r\n"), 411);
    EXPECT_EQ(statusOf("POST / HTTP/1.1\r\nContent-Length: 5000000\r\n\r\n"), 413);
    EXPECT_EQ(statusOf("POST / HTTP/1.1\r\nContent-Length: 99999999999999999999\r\n\r\n"), 413);
    EXPECT_EQ(statusOf("POST / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n"), 501);
    EXPECT_EQ(statusOf("GET / HTTP/1.1\r\nX: " + std::string(70000, 'x')), 431);
}

TEST_F(HttpTest, KeepsAConnectionForTheNextRequest)
{
    RawClient client(gateway.port());
    for (int i = 0; i < 3; ++i) {
        client.forget();
        client.send(post("/cgi-bin/webapp", xml("1.0.1", {"query sysmgr-0 fwversion"}), cookie));
        client.readReply();
        EXPECT_EQ(errorIn(client.body()), 0);
    }
    EXPECT_EQ(client.ending(), Ending::Open);
    EXPECT_EQ(gateway.connectionCount(), 2U);
    EXPECT_EQ(gateway.requestCount(), 4U);
}

TEST_F(HttpTest, ClosesWhenTheClientWantsIt)
{
    for (const char* head :
         {"GET / HTTP/1.1\r\nConnection: Close\r\n\r\n", "GET / HTTP/1.0\r\n\r\n"}) {
        RawClient client(gateway.port());
        client.send(head);
        client.readToEnd();
        EXPECT_EQ(client.status(), 200) << head;
        EXPECT_EQ(client.ending(), Ending::Closed) << head;
    }
}

TEST_F(HttpTest, ReadsARequestThatArrivesInPieces)
{
    const std::string bytes =
        post("/cgi-bin/webapp", xml("1.0.1", {"get conn-0 hostname"}), cookie);
    RawClient client(gateway.port());
    for (const char byte : bytes)
        client.send(std::string(1, byte));
    client.readReply();
    EXPECT_EQ(errorIn(client.body()), 0);
}

TEST_F(HttpTest, AnswersAClientThatHasEndedItsSide)
{
    RawClient client(gateway.port());
    client.send("GET / HTTP/1.1\r\n\r\n");
    client.endSending();
    client.readToEnd();
    EXPECT_EQ(client.status(), 200);
    EXPECT_EQ(client.ending(), Ending::Closed);
}

TEST_F(HttpTest, InvitesABodyThatWaits)
{
    const std::string body = xml("1.0.1", {"get conn-0 hostname"});
    RawClient client(gateway.port());
    client.send("POST /cgi-bin/webapp HTTP/1.1\r\nCookie: " + cookie +
                "\r\nExpect: 100-continue\r\nContent-Length: " + std::to_string(body.size()) +
                "\r\n\r\n");
    ASSERT_TRUE(client.readUntil("HTTP/1.1 100 Continue\r\n\r\n"));
    client.forget();
    client.send(body);
    client.readReply();
    EXPECT_EQ(client.status(), 200);
    EXPECT_EQ(errorIn(client.body()), 0);
}

TEST_F(HttpTest, AnAddressHasNoScheme)
{
    EXPECT_EQ(gateway.address(), "127.0.0.1:" + std::to_string(gateway.port()));
    EXPECT_EQ(gateway.url(), "http://" + gateway.address());
}

} // namespace quorvel::simulator::tests
