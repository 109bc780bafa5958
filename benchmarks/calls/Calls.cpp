// Whole calls: a facade's against the ways in which one could do without the library.

#include "calls/LibcurlCall.h"
#include "calls/ScriptCall.h"
#include "support/BareDocuments.h"
#include "support/BareExchange.h"
#include "support/FacadeCall.h"
#include "support/FixedReplies.h"
#include "support/FixedServer.h"
#include "support/Run.h"
#include "support/Table.h"

#include <QCoreApplication>
#include <cstdio>

namespace quorvel::bench
{

namespace
{

Contender facadeCall(const General& facade)
{
    return {"facade call",
            [facade](int calls) { return measured(calls, [&] { askFirmware(facade); }); }};
}

/// What a call can't do without: the exchange, and for a reply that is worth it the document.
Contender bareCall(const QString& address, bool withDocument)
{
    return {withDocument ? "bare exchange and QDom work" : "bare exchange", [=](int calls) {
                return measured(calls, [&] {
                    if (!withDocument)
                        bareExchange(address);
                    else
                        bareCallWithDocuments(address);
                });
            }};
}

Contender libcurlCall(const QString& address)
{
    const std::string url = "http://" + address.toStdString() + "/cgi-bin/webapp";
    return {"libcurl and pugixml", [url](int calls) {
                return measured(calls, [&] {
                    const auto entries = askWithLibcurl(url, firmwareRequest.toStdString());
                    if (entries.at("sysmgr-0.fwversion") != "6.2.14.9")
                        std::abort();
                });
            }};
}

/// Both sides must ask the same, or nothing can be said about them.
void expectSameRequest(const FixedServer& server, const Contender& one, const Contender& other)
{
    one.run(1);
    const QByteArray first = server.lastRequest();
    other.run(1);
    if (first == server.lastRequest())
        return;
    std::fprintf(stderr, "The requests differ:\n%s\n%s\n", first.constData(),
                 server.lastRequest().constData());
    std::exit(1);
}

void compareSmall(const FixedServer& server, const Effort& effort)
{
    const QString address = server.address(0);
    const std::vector<Contender> contenders = {
        facadeCall(facadeAt(address)), bareCall(address, false),       libcurlCall(address),
        scriptCall(address, "post"),   scriptCall(address, "session"), bareCall(address, true)};
    expectSameRequest(server, contenders[0], contenders[1]);
    const Comparison comparison(contenders, effort);
    const std::string what = "1. getFirmwareVersion to ";
    printRow(what + "the bare exchange, wall", comparison.wallRatio(0, 1), atMost(1.05));
    printRow(what + "the bare exchange, CPU", comparison.cpuRatio(0, 1), atMost(1.10));
    printRow(what + "the bare exchange and QDom work, wall", comparison.wallRatio(0, 5));
    printRow(what + "the bare exchange and QDom work, CPU", comparison.cpuRatio(0, 5));
    printRow(what + "libcurl and pugixml, wall", comparison.wallRatio(0, 2));
    printRow(what + "libcurl and pugixml, CPU", comparison.cpuRatio(0, 2));
    printRow(what + "Python requests, wall", comparison.wallRatio(0, 3), atMost(1));
    printRow(what + "Python requests, CPU", comparison.cpuRatio(0, 3));
    printRow(what + "Python requests that keep the connection, wall", comparison.wallRatio(0, 4));
    printCosts(contenders, comparison);
}

void compareSize(const FixedServer& server, std::size_t reply, const std::string& size,
                 const Effort& effort)
{
    const QString address = server.address(reply);
    const std::vector<Contender> contenders = {facadeCall(facadeAt(address)),
                                               bareCall(address, true)};
    const Comparison comparison(contenders, effort);
    const std::string what = "2. a reply of " + size + " to the bare exchange and QDom work, ";
    printRow(what + "wall", comparison.wallRatio(0, 1), atMost(1.25));
    printRow(what + "CPU", comparison.cpuRatio(0, 1));
    printCosts(contenders, comparison);
}

} // namespace

} // namespace quorvel::bench

int main(int argc, char** argv)
{
    using namespace quorvel::bench;
    const FixedServer server(
        {fixedReply(smallReply), fixedReply(middleReply), fixedReply(largeReply)});
    QCoreApplication application(argc, argv);
    const bool whole = !isSmokeRun(argc, argv);
    compareSmall(server, whole ? Effort{60, 100} : Effort{2, 2});
    compareSize(server, 1, "10 kB", whole ? Effort{60, 50} : Effort{2, 2});
    compareSize(server, 2, "1 MB", whole ? Effort{30, 1} : Effort{2, 1});
    return 0;
}
