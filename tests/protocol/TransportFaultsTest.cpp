#include "general/GeneralSettingsImplementor.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/BuiltGateway.h"
#include "support/MemoryWatch.h"
#include "support/Text.h"

#include <quorvel/AspGeneralSettingsFacade.h>

#include <QDir>
#include <boost/make_shared.hpp>
#include <gmock/gmock.h>
#include <ostream>

namespace quorvel::test
{

namespace
{

using testing::AnyOfArray;

/// What goes wrong at the gateway, and how a facade may report it.
struct Fault {
    const char* name;
    std::function<void(ScriptedGateway& gateway)> play;
    std::vector<int> errors;
    int limitMs = 20000;
    int repetitions = 20;
};

void PrintTo(const Fault& fault, std::ostream* out)
{
    *out << fault.name;
}

std::string faultName(const testing::TestParamInfo<Fault>& info)
{
    return info.param.name;
}

std::function<void(ScriptedGateway&)> sending(const QByteArray& bytes)
{
    return [=](ScriptedGateway& gateway) { gateway.sendRaw(bytes); };
}

std::function<void(ScriptedGateway&)> resetting(const QByteArray& bytes)
{
    return [=](ScriptedGateway& gateway) { gateway.sendAndReset(bytes); };
}

std::function<void(ScriptedGateway&)> answering(const ScriptedGateway::Behaviour& behaviour)
{
    return [=](ScriptedGateway& gateway) { gateway.answer(behaviour); };
}

QByteArray goodBody()
{
    return reply101({{"sysmgr-0", "fwversion", "1.2"}, {"webapp", "error", "0"}}).toUtf8();
}

QByteArray withHeaders(const QByteArray& headers, const QByteArray& body = goodBody())
{
    return "HTTP/1.1 200 OK\r\n" + headers + "\r\n" + body;
}

QByteArray withStatus(const QByteArray& status, const QByteArray& body = QByteArray())
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
           "\r\n\r\n" + body;
}

QByteArray rubbish()
{
    QByteArray bytes;
    for (quint32 state = 1; bytes.size() < 5000; state = state * 1664525 + 1013904223)
        bytes.append(static_cast<char>(state >> 24));
    return bytes;
}

/// A reply that names version 1.2, packed.
QByteArray packed()
{
    return QByteArray::fromHex("1f8b0800000000000203b3294a2d2ec8cf2b4e55284b2d2acecccfb35532"
                               "d433d03354b2b329ae2cce4d2fd235b0b3c94eadb44b2b872ab0d107716d"
                               "ca12734a53ed0cf58c6cf4214c1b7d84067d98a97600cc05691560000000");
}

/// 600 kB that unpack to 600 MB of NUL bytes.
QByteArray packedBomb()
{
    return QByteArray::fromHex("1f8b0800000000000203ecc101010000008090feafee080a") +
           QByteArray(600000, '\0');
}

QByteArray packedReply(const QByteArray& body)
{
    return httpReply(body, "Content-Encoding: gzip\r\n");
}

/// Sends the same bytes again and again until the peer goes away.
std::function<void(ScriptedGateway&)> streaming(const QByteArray& start, const QByteArray& more)
{
    return answering([=](const ReceivedRequest&, GatewayConnection& peer) {
        peer.send(start);
        while (peer.send(more) && peer.pause(0)) {
        }
    });
}

std::function<void(ScriptedGateway&)> dripping(const QByteArray& bytes)
{
    return answering([=](const ReceivedRequest&, GatewayConnection& peer) {
        for (const char byte : bytes) {
            if (!peer.send(QByteArray(1, byte)) || !peer.pause(1))
                return;
        }
    });
}

int openFiles()
{
    return QDir(text("/proc/self/fd")).entryList(QDir::System | QDir::NoDotAndDotDot).size();
}

/// Asks for the firmware's version while the gateway misbehaves.
class TransportFault : public BuiltGateway, public testing::WithParamInterface<Fault>
{
protected:
    TransportFault()
    {
        build({{"XML_VERSION", "1.0.1"}});
        cpe->getGeneralImplementor()->setRequestExecutor(
            boost::make_shared<HttpRequestExecutor>(GetParam().limitMs));
    }

    int ask()
    {
        AspGeneralSettingsFacade facade(cpe);
        AspWebAppErrorCodes error = AspWebAppNoError;
        version = facade.getFirmwareVersion(error);
        return error;
    }

    QString version;
};

} // namespace

TEST_P(TransportFault, IsReportedAfterOneRequestAndTheNextOneWorks)
{
    int files = 0;
    const MemoryWatch memory;
    for (int round = 1; round <= GetParam().repetitions; ++round) {
        const int before = gateway.requests().size();
        GetParam().play(gateway);
        const int error = ask();
        EXPECT_THAT(error, AnyOfArray(GetParam().errors)) << "round " << round;
        EXPECT_EQ(version, error == 0 ? text("1.2") : QString());
        EXPECT_LE(gateway.requests().size() - before, 1);
        EXPECT_EQ(gateway.connections(), 2 * round - 1);
        gateway.sendRaw(httpReply(goodBody()));
        EXPECT_EQ(ask(), 0) << "round " << round;
        EXPECT_EQ(version, text("1.2"));
        if (round == 1)
            files = openFiles();
    }
    // The gateway's own ends of the connections may be open still.
    EXPECT_LE(openFiles(), files + 4);
    EXPECT_LE(memory.grownMegabytes(), 64);
}

INSTANTIATE_TEST_SUITE_P(
    BeforeTheReply, TransportFault,
    testing::Values(Fault{"ReadsAndCloses", sending(""), {29}},
                    Fault{"ReadsAndResets", resetting(""), {29}},
                    Fault{"CutInTheStatusLine", sending("HTTP/1."), {29}},
                    Fault{"CutInAHeader", sending("HTTP/1.1 200 OK\r\nContent-"), {29}},
                    Fault{"ResetInAHeader", resetting("HTTP/1.1 200 OK\r\nContent-"), {29}},
                    Fault{"Rubbish", sending(rubbish()), {29}},
                    Fault{"OnlyAnInterimReply", sending("HTTP/1.1 100 Continue\r\n\r\n"), {29}}),
    faultName);

INSTANTIATE_TEST_SUITE_P(
    InTheReply, TransportFault,
    testing::Values(
        Fault{"BodyTooShort", sending(withHeaders("Content-Length: 1000\r\n")), {29}},
        Fault{"BodyTooShortAndReset", resetting(withHeaders("Content-Length: 1000\r\n")), {29}},
        Fault{"LengthNegative", sending(withHeaders("Content-Length: -5\r\n")), {0, 25, 29}},
        Fault{"LengthNotANumber", sending(withHeaders("Content-Length: long\r\n")), {0, 25, 29}},
        Fault{"ChunkSizeIsRubbish",
              sending(withHeaders("Transfer-Encoding: chunked\r\n",
                                  "ZZ\r\n" + goodBody() + "\r\n0\r\n\r\n")),
              {25, 29}},
        Fault{"ChunksWithoutEnd",
              sending(withHeaders("Transfer-Encoding: chunked\r\n",
                                  QByteArray::number(goodBody().size(), 16) + "\r\n" + goodBody() +
                                      "\r\n")),
              {29}},
        Fault{"NoContent", sending("HTTP/1.1 204 No Content\r\n\r\n"), {25, 29}},
        Fault{"NotModified", sending("HTTP/1.1 304 Not Modified\r\n\r\n"), {25, 29}},
        Fault{"SwitchingProtocols", sending("HTTP/1.1 101 Switching\r\n\r\n"), {25, 29}},
        Fault{"NotFound", sending(withStatus("404 Not Found", goodBody())), {29}},
        Fault{"ServerError", sending(withStatus("500 Error", goodBody())), {29}},
        Fault{"Unavailable", sending(withStatus("503 Unavailable", goodBody())), {29}},
        Fault{"EmptyBody", sending(httpReply("")), {25}},
        Fault{"WebPage", sending(httpReply("<html><body>Welcome<br></body></html>")), {25}},
        Fault{"LongHeader",
              sending(httpReply(goodBody(), "X: " + QByteArray(1000000, 'x') + "\r\n")),
              {0, 29},
              20000,
              1},
        Fault{"ManyHeaders",
              sending(httpReply(goodBody(), QByteArray("X-Y: z\r\n").repeated(10000))),
              {0, 29},
              20000,
              2}),
    faultName);

INSTANTIATE_TEST_SUITE_P(
    PackedUnasked, TransportFault,
    testing::Values(Fault{"Whole", sending(packedReply(packed())), {0, 25, 29}},
                    Fault{
                        "Broken", sending(packedReply(packed().replace(20, 4, "????"))), {25, 29}},
                    Fault{"Truncated", sending(packedReply(packed().left(40))), {25, 29}},
                    Fault{"Bomb", sending(packedReply(packedBomb())), {25, 29}}),
    faultName);

INSTANTIATE_TEST_SUITE_P(
    ThatIsNone, TransportFault,
    testing::Values(Fault{"NoLength", sending(withHeaders("")), {0}},
                    Fault{"InterimReplyFirst",
                          sending("HTTP/1.1 100 Continue\r\n\r\n" + httpReply(goodBody())),
                          {0}},
                    Fault{"OldProtocolAndBareLineFeeds",
                          sending("HTTP/1.0 200 OK\nServer: x\n\n" + goodBody()),
                          {0}},
                    Fault{"ByteByByte", dripping(httpReply(goodBody())), {0}, 20000, 2},
                    Fault{"NestedDeeply",
                          sending(httpReply(goodBody().replace(
                              "<webapp>", "<x>" + QByteArray("<y>").repeated(200) +
                                              QByteArray("</y>").repeated(200) + "</x><webapp>"))),
                          {0}},
                    Fault{"LargeText",
                          sending(httpReply(goodBody().replace("<webapp>",
                                                               "<x><y>" + QByteArray(3000000, 'y') +
                                                                   "</y></x><webapp>"))),
                          {0},
                          20000,
                          1}),
    faultName);

INSTANTIATE_TEST_SUITE_P(
    WithoutEnd, TransportFault,
    testing::Values(
        Fault{"Silence", [](ScriptedGateway& gateway) { gateway.sendAndHold({}); }, {28}, 2000, 2},
        Fault{"NeverReads", [](ScriptedGateway& gateway) { gateway.holdUnread(); }, {28}, 2000, 2},
        Fault{"BodyTooShortAndHeld",
              [](ScriptedGateway& gateway) {
                  gateway.sendAndHold(withHeaders("Content-Length: 1000\r\n"));
              },
              {28},
              2000,
              2},
        Fault{"Drip", dripping(withHeaders("", QByteArray(100000, 'x'))), {28}, 2000, 1},
        Fault{"EndlessBody", streaming(withHeaders(""), QByteArray(65536, 'x')), {29}, 20000, 2},
        Fault{"EndlessChunks",
              streaming(withHeaders("Transfer-Encoding: chunked\r\n", ""),
                        "10000\r\n" + QByteArray(65536, 'x') + "\r\n"),
              {29},
              20000,
              2},
        Fault{"EndlessHeader",
              streaming("HTTP/1.1 200 OK\r\nX: ", QByteArray(65536, 'x')),
              {28, 29},
              2000,
              1}),
    faultName);

} // namespace quorvel::test
