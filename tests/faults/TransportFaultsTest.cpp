#include "faults/FaultRow.h"

namespace quorvel::test
{

namespace
{

/// What reads nothing of a connection; Qt may try a second one, on which it has no body to send.
Misbehaviour unread(ScriptedGateway& (ScriptedGateway::*step)())
{
    return playing([=](ScriptedGateway& gateway) {
        (gateway.*step)();
        gateway.answerAllOthers(
            [](const ReceivedRequest&, GatewayConnection& peer) { peer.reset(); });
    });
}

QByteArray rubbish()
{
    QByteArray bytes;
    for (quint32 state = 1; bytes.size() < 5000; state = state * 1664525 + 1013904223)
        bytes.append(static_cast<char>(state >> 24));
    return bytes;
}

QByteArray chunk(const QByteArray& content)
{
    return QByteArray::number(content.size(), 16) + "\r\n" + content + "\r\n";
}

QByteArray chunked(const QByteArray& chunks)
{
    return withHeaders("Transfer-Encoding: chunked\r\n", chunks);
}

QByteArray announced(const QByteArray& length, const QByteArray& body = goodBody())
{
    return withHeaders("Content-Length: " + length + "\r\n", body);
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

QByteArray packedReply(const QByteArray& body, const QByteArray& encoding = "gzip")
{
    return httpReply(body, "Content-Encoding: " + encoding + "\r\n");
}

QByteArray distinctHeaders(int number)
{
    QByteArray headers;
    for (int i = 0; i < number; ++i)
        headers += "X-" + QByteArray::number(i) + ": z\r\n";
    return headers;
}

const QByteArray interim = "HTTP/1.1 100 Continue\r\n\r\n";
const QByteArray head = "HTTP/1.1 200 OK\r\n";

std::vector<Fault> beforeTheReply()
{
    return {
        Fault{"NobodyListens", injected("refuse"), {29}}.withoutRequest().soonerThan(100),
        Fault{"ClosesOnAccept", unread(&ScriptedGateway::closeOnAccept), {29}}.withoutRequest(2),
        Fault{"ResetsOnAccept", unread(&ScriptedGateway::resetOnAccept), {29}}.withoutRequest(2),
        {"ReadsAndCloses", injected("close"), {29}},
        {"ReadsAndResets", injected("reset:0"), {29}},
        {"ClosesGentlyAfterReading", sending(""), {29}},
        {"CutInTheStatusLine", sending("HTTP/1."), {29}},
        {"ResetInTheStatusLine", injected("reset:7"), {29}},
        {"CutBehindTheStatusLine", sending(head), {29}},
        {"CutInAHeader", sending(head + "Content-"), {29}},
        {"ResetInAHeader", resetting(head + "Content-"), {29}},
        {"Rubbish", sending(rubbish()), {29}},
        {"OtherRubbish", injected("garbage"), {29}},
        {"OneByte", sending(QByteArray(1, '\0')), {29}},
        {"BlankLines", sending("\r\n\r\n\r\n"), {29}},
        {"BodyWithoutHead", sending(goodBody()), {29}},
        {"AnotherProtocol", sending("SSH-2.0-x\r\n"), {29}},
        {"AnotherVersion", sending("HTTP/9.9 200 OK\r\n\r\n" + goodBody()), {0, 25, 29}},
        {"StatusOfOneDigit", sending("HTTP/1.1 2 OK\r\n\r\n" + goodBody()), {0, 25, 29}},
        {"StatusOutOfRange", sending(withStatus("99999 OK", goodBody())), {25, 29}},
        {"StatusNegative", sending(withStatus("-200 OK", goodBody())), {0, 25, 29}},
        {"OnlyAnInterimReply", sending(interim), {29}},
        {"TwoInterimReplies", sending(interim + interim), {29}}};
}

std::vector<Fault> inTheReply()
{
    return {
        {"BodyTooShort", sending(announced("1000")), {29}},
        {"HalfOfTheBody", injected("truncate"), {29}},
        {"BodyTooShortAndReset", resetting(announced("1000")), {29}},
        {"NothingOfTheBody", sending(announced("1000", "")), {29}},
        {"BodyTooLong", injected("wrong-length:-10"), {25, 29}},
        {"LengthTooLarge", injected("wrong-length"), {29}},
        {"LengthOfGigabytes", sending(announced("5000000000")), {29}},
        {"LengthBeyondNumbers", sending(announced("99999999999999999999")), {0, 25, 29}},
        {"LengthNegative", sending(announced("-5")), {0, 25, 29}},
        {"LengthNotANumber", sending(announced("long")), {0, 25, 29}},
        {"LengthEmpty", sending(announced("")), {0, 25, 29}},
        {"TwoLengths", sending(announced("10\r\nContent-Length: 1000")), {0, 25, 29}},
        {"ChunkSizeIsRubbish", sending(chunked("ZZ\r\n" + goodBody() + "\r\n0\r\n\r\n")), {25, 29}},
        {"ChunkSizeIsNegative",
         sending(chunked("-5\r\n" + goodBody() + "\r\n0\r\n\r\n")),
         {25, 29}},
        {"ChunkSizeIsHuge",
         sending(chunked("ffffffffffffffff\r\n" + goodBody() + "\r\n0\r\n\r\n")),
         {25, 29}},
        {"ChunksWithoutEnd", sending(chunked(chunk(goodBody()))), {29}},
        {"ChunksCutInTheMiddle", sending(chunked(chunk(goodBody()).left(40))), {25, 29}},
        {"ChunksReset", resetting(chunked(chunk(goodBody()).left(40))), {25, 29}},
        {"ChunkedAndNothing", sending(chunked("")), {25, 29}},
        {"NoContent", sending("HTTP/1.1 204 No Content\r\n\r\n"), {25, 29}},
        {"NoContentButABody", sending(withStatus("204 No Content", goodBody())), {25, 29}},
        {"NotModified", sending("HTTP/1.1 304 Not Modified\r\n\r\n"), {25, 29}},
        {"SwitchingProtocols", sending("HTTP/1.1 101 Switching\r\n\r\n"), {25, 29}},
        {"NotFound", injected("http:404"), {29}},
        {"ServerError", injected("http:500"), {29}},
        {"Unavailable", injected("http:503"), {29}},
        {"BadRequest", sending(withStatus("400 Bad Request", goodBody())), {29}},
        {"EmptyBody", injected("empty"), {25}},
        {"WebPage", injected("html"), {25}},
        {"NotUtf8", sending(httpReply("<r>\xff\xfe</r")), {25}},
        {"LongHeader",
         sending(httpReply(goodBody(), "X: " + QByteArray(1000000, 'x') + "\r\n")),
         {0, 29}},
        Fault{"LongCookie",
              sending(httpReply(goodBody(), "Set-Cookie: " + QByteArray(1000000, ';') + "\r\n")),
              {0, 29}}
            .times(3),
        {"ManyHeaders", sending(httpReply(goodBody(), distinctHeaders(10000))), {0, 29}},
        {"ManyHeadersOfOneName",
         sending(httpReply(goodBody(), QByteArray("X-Y: z\r\n").repeated(10000))),
         {0, 29}}};
}

std::vector<Fault> packedUnasked()
{
    return {{"Whole", sending(packedReply(packed())), {0, 25, 29}},
            {"Broken", sending(packedReply(packed().replace(20, 4, "????"))), {25, 29}},
            {"Truncated", sending(packedReply(packed().left(40))), {25, 29}},
            {"Bomb", sending(packedReply(packedBomb())), {25, 29}},
            {"CalledDeflate", sending(packedReply(packed(), "deflate")), {25, 29}},
            {"CalledUnknown", sending(packedReply(packed(), "br")), {25, 29}},
            {"Chunked",
             sending(withHeaders("Content-Encoding: gzip\r\nTransfer-Encoding: chunked\r\n",
                                 chunk(packedBomb()) + "0\r\n\r\n")),
             {25, 29}}};
}

std::vector<Fault> thatAreNone()
{
    return {{"NoLength", sending(withHeaders("")), {0}},
            {"InterimReplyFirst", sending(interim + httpReply(goodBody())), {0}},
            {"ManyInterimRepliesFirst", sending(interim.repeated(50) + httpReply(goodBody())), {0}},
            {"OldProtocolAndBareLineFeeds",
             sending("HTTP/1.0 200 OK\nServer: x\n\n" + goodBody()),
             {0}},
            {"NoReasonPhrase", sending(withStatus("200", goodBody())), {0}},
            {"ChunkForEachByte",
             sending(chunked([] {
                 QByteArray chunks;
                 for (const char byte : goodBody())
                     chunks += chunk(QByteArray(1, byte));
                 return chunks + "0\r\n\r\n";
             }())),
             {0}},
            {"SecondReplyBehindTheFirst", sending(httpReply(goodBody()) + httpReply("<r/>")), {0}},
            {"ByteByByte", dripping(httpReply(goodBody()), 1), {0}}};
}

std::vector<Fault> withoutEnd()
{
    const QByteArray crowd(65536, 'x');
    const Misbehaviour late = playing([](ScriptedGateway& gateway) {
        gateway.answer([](const ReceivedRequest&, GatewayConnection& peer) {
            peer.waitForPeer();
            peer.send(httpReply(goodBody()));
        });
    });
    return {
        Fault{"NoAnswer", injected("hang"), {28}}.within(150),
        Fault{"NeverReads", playing([](ScriptedGateway& gateway) { gateway.holdUnread(); }), {28}}
            .withoutRequest(1)
            .within(150),
        Fault{"BodyTooShortAndHeld", holding(announced("1000")), {28}}.within(150),
        Fault{"HeldInAHeader", holding(head + "Content-"), {28}}.within(150),
        Fault{"HeldInAChunk", holding(chunked("ff\r\n<r>")), {28}}.within(150),
        Fault{"HeldAfterAnInterimReply", holding(interim), {28}}.within(150),
        Fault{"DripsForEver", injected("drip:100"), {28}}.within(150),
        Fault{"AnswersTooLate", late, {28}}.within(150),
        {"EndlessBody", streaming(withHeaders("", ""), crowd), {29}},
        {"EndlessChunks", streaming(chunked(""), chunk(crowd)), {29}},
        {"BodyOf5Mebibytes", injected("oversized"), {29}}};
}

} // namespace

using TransportFault = FaultRow;

TEST_P(TransportFault, IsReportedAndTheNextExchangeWorks)
{
    expectOutcome(GetParam());
}

INSTANTIATE_TEST_SUITE_P(BeforeTheReply, TransportFault, testing::ValuesIn(beforeTheReply()),
                         FaultName());
INSTANTIATE_TEST_SUITE_P(InTheReply, TransportFault, testing::ValuesIn(inTheReply()), FaultName());
INSTANTIATE_TEST_SUITE_P(PackedUnasked, TransportFault, testing::ValuesIn(packedUnasked()),
                         FaultName());
INSTANTIATE_TEST_SUITE_P(ThatIsNone, TransportFault, testing::ValuesIn(thatAreNone()), FaultName());
INSTANTIATE_TEST_SUITE_P(WithoutEnd, TransportFault, testing::ValuesIn(withoutEnd()), FaultName());

} // namespace quorvel::test
