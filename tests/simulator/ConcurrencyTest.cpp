#include "SimulatedGateway.h"

#include <atomic>
#include <thread>

namespace quorvel::simulator::tests
{

using std::chrono::milliseconds;
using std::chrono::seconds;

class ConcurrencyTest : public SimulatedGateway
{
};

TEST_F(ConcurrencyTest, ManyClientsAreServedAtOnce)
{
    constexpr int clients = 8;
    constexpr int rounds = 50;
    std::atomic<int> right{0};
    std::vector<std::thread> threads;
    for (int number = 0; number < clients; ++number) {
        gateway.setValue("conn-" + std::to_string(number), "hostname",
                         "name" + std::to_string(number));
        threads.emplace_back([this, number, &right] {
            const std::string line = "get conn-" + std::to_string(number) + " hostname";
            const std::string answer = "<value>name" + std::to_string(number) + "</value>";
            for (int round = 0; round < rounds; ++round)
                right += send({line.c_str()}).find(answer) != std::string::npos;
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(right, clients * rounds);
    EXPECT_EQ(gateway.requestCount(), clients * rounds + 1U);
}

TEST_F(ConcurrencyTest, ControlMayComeFromAnyThread)
{
    gateway.setRebootTime(milliseconds(1));
    std::atomic<bool> over{false};
    std::vector<std::thread> clients;
    for (int number = 0; number < 3; ++number) {
        clients.emplace_back([this, &over] {
            while (!over)
                errorOf({"get conn-0 hostname"});
        });
    }
    std::vector<std::thread> hands;
    for (int number = 0; number < 2; ++number) {
        hands.emplace_back([this] {
            for (int round = 0; round < 20; ++round) {
                gateway.setFault(*Fault::fromText("refuse"));
                gateway.setFault(*Fault::fromText("reset"));
                gateway.setValue("conn-0", "hostname", "attic");
                gateway.value("conn-0", "hostname");
                gateway.restart();
                gateway.transcript();
                gateway.clearFaults();
            }
        });
    }
    for (std::thread& hand : hands)
        hand.join();
    over = true;
    for (std::thread& client : clients)
        client.join();
    ASSERT_TRUE(gateway.waitUntilReachable(true, seconds(10)));
    cookie = logIn();
    EXPECT_EQ(get("conn-0", "hostname"), "attic");
}

TEST_F(ConcurrencyTest, AGatewayCanBeStoppedWhileItIsBusy)
{
    gateway.setFault(*Fault::fromText("hang"));
    RawClient hanging(gateway.port());
    hanging.send("GET / HTTP/1.1\r\n\r\n");
    ASSERT_TRUE(gateway.waitForRequests(2, seconds(10)));
    gateway.stop();
    hanging.readToEnd();
    EXPECT_NE(hanging.ending(), Ending::Open);
}

} // namespace quorvel::simulator::tests
