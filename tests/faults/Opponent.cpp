#include "faults/Opponent.h"

#include <gtest/gtest.h>

namespace quorvel::test
{

Misbehaviour injected(const char* fault)
{
    return {fault, {}};
}

Misbehaviour playing(std::function<void(ScriptedGateway&)> play)
{
    return {nullptr, std::move(play)};
}

Misbehaviour sending(const QByteArray& bytes)
{
    return playing([=](ScriptedGateway& gateway) { gateway.sendRaw(bytes); });
}

Misbehaviour resetting(const QByteArray& bytes)
{
    return playing([=](ScriptedGateway& gateway) { gateway.sendAndReset(bytes); });
}

Misbehaviour holding(const QByteArray& bytes)
{
    return playing([=](ScriptedGateway& gateway) { gateway.sendAndHold(bytes); });
}

Misbehaviour streaming(const QByteArray& start, const QByteArray& more)
{
    return playing([=](ScriptedGateway& gateway) {
        gateway.answer([=](const ReceivedRequest&, GatewayConnection& peer) {
            peer.send(start);
            while (peer.send(more) && peer.pause(0)) {
            }
        });
    });
}

Misbehaviour dripping(const QByteArray& bytes, int millisecondsEach)
{
    return playing([=](ScriptedGateway& gateway) {
        gateway.answer([=](const ReceivedRequest&, GatewayConnection& peer) {
            for (const char byte : bytes) {
                if (!peer.send(QByteArray(1, byte)) || !peer.pause(millisecondsEach))
                    return;
            }
        });
    });
}

QByteArray goodBody()
{
    return reply101({{"sysmgr-0", "fwversion", "1.2"}, {"webapp", "error", "0"}}).toUtf8();
}

QByteArray withHeaders(const QByteArray& headers, const QByteArray& body)
{
    return "HTTP/1.1 200 OK\r\n" + headers + "\r\n" + body;
}

QByteArray withStatus(const QByteArray& status, const QByteArray& body)
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
           "\r\n\r\n" + body;
}

Opponent::Opponent(const Misbehaviour& way) : way(way)
{
    if (!way.injected) {
        scripted = std::make_unique<ScriptedGateway>();
        return;
    }
    std::string error;
    const auto scenario = simulator::Scenario::load("modern", &error);
    EXPECT_TRUE(scenario) << error;
    simulated = std::make_unique<simulator::GatewaySimulator>(*scenario);
    simulated->setRecordLimit(0);
    simulated->setValue("webui-0", "password", "secret");
    simulated->setStatus("sysmgr-0", "fwversion", "1.2");
    EXPECT_TRUE(simulated->start(&error)) << error;
}

Opponent::~Opponent() = default;

QString Opponent::address() const
{
    return simulated ? QString::fromStdString(simulated->address()) : scripted->address();
}

void Opponent::misbehave()
{
    if (!simulated) {
        way.play(*scripted);
        return;
    }
    std::string error;
    const auto fault = simulator::Fault::fromText(way.injected, &error);
    ASSERT_TRUE(fault) << error;
    simulated->setFault(*fault);
}

void Opponent::behave()
{
    if (simulated)
        simulated->clearFaults();
    else
        scripted->sendRaw(httpReply(goodBody()));
}

void Opponent::release()
{
    if (scripted)
        scripted->release();
}

int Opponent::requests() const
{
    return simulated ? static_cast<int>(simulated->requestCount()) : scripted->requests().size();
}

int Opponent::connections() const
{
    return simulated ? static_cast<int>(simulated->connectionCount()) : scripted->connections();
}

} // namespace quorvel::test
