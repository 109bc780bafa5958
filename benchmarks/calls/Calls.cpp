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
#include <cstring>

namespace quorvel::bench
{

namespace
{

Contender facadeCall(const General& facade)
{
    return {"facade call",
            [facade](int calls) { return measured(calls, [&] { askFirmware(facade); }); }};
}

Contender bareCall(const QString& address)
{
    return {"bare exchange",
            [=](int calls) { return measured(calls, [&] { bareExchange(address); }); }};
}

Contender plainestCall(const QString& address)
{
    return {"plainest exchange",
            [=](int calls) { return measured(calls, [&] { plainestExchange(address); }); }};
}

/// What a call can't do without: the exchange and the documents.
Contender bareCallAndDocuments(const QString& address)
{
    return {"bare exchange and QDom work",
            [=](int calls) { return measured(calls, [&] { bareCallWithDocuments(address); }); }};
}

/// The same, and Qt's maps in which requests and replies are handed on.
Contender bareCallAndMaps(const QString& address)
{
    return {"bare exchange, QDom work and maps",
            [=](int calls) { return measured(calls, [&] { bareCallWithMaps(address); }); }};
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

/// A row for the time on the clock and one for that of the processor.
void printRatios(const Comparison& comparison, std::size_t one, std::size_t other,
                 const std::string& what)
{
    printRow(what + ", wall", comparison.wallRatio(one, other));
    printRow(what + ", CPU", comparison.cpuRatio(one, other));
}

enum { Facade, Bare, BareAndDocuments, BareAndMaps, Plainest, Libcurl, Script, ScriptSession };

std::vector<Contender> contendersAt(const QString& address)
{
    return {facadeCall(facadeAt(address)), bareCall(address),
            bareCallAndDocuments(address), bareCallAndMaps(address),
            plainestCall(address),         libcurlCall(address),
            scriptCall(address, "post"),   scriptCall(address, "session")};
}

void compareSmall(const FixedServer& server, const Effort& effort)
{
    const std::vector<Contender> contenders = contendersAt(server.address(0));
    for (const std::size_t other : {Bare, BareAndDocuments, BareAndMaps, Plainest})
        expectSameRequest(server, contenders[Facade], contenders[other]);
    const Comparison comparison(contenders, effort);
    const std::string what = "1. getFirmwareVersion to ";
    printRow(what + "the bare exchange, wall", comparison.wallRatio(Facade, Bare), atMost(1.05));
    printRow(what + "the bare exchange, CPU", comparison.cpuRatio(Facade, Bare), atMost(1.10));
    printRatios(comparison, BareAndDocuments, Bare,
                "1. the bare exchange and QDom work to the bare exchange");
    printRatios(comparison, BareAndMaps, Bare,
                "1. the bare exchange, QDom work and maps to the bare exchange");
    printRatios(comparison, Facade, BareAndDocuments, what + "the bare exchange and QDom work");
    printRatios(comparison, Facade, BareAndMaps, what + "the bare exchange, QDom work and maps");
    printRatios(comparison, Facade, Plainest, what + "the plainest exchange");
    printRatios(comparison, Facade, Libcurl, what + "libcurl and pugixml");
    printRow(what + "Python requests, wall", comparison.wallRatio(Facade, Script), atMost(1));
    printRow(what + "Python requests, CPU", comparison.cpuRatio(Facade, Script));
    printRatios(comparison, Facade, ScriptSession,
                what + "Python requests that keep the connection");
    printCosts(contenders, comparison);
}

void compareSize(const FixedServer& server, std::size_t reply, const std::string& size,
                 const Effort& effort)
{
    const QString address = server.address(reply);
    const std::vector<Contender> contenders = {facadeCall(facadeAt(address)),
                                               bareCallAndDocuments(address)};
    const Comparison comparison(contenders, effort);
    const std::string what = "2. a reply of " + size + " to the bare exchange and QDom work, ";
    printRow(what + "wall", comparison.wallRatio(0, 1), atMost(1.25));
    printRow(what + "CPU", comparison.cpuRatio(0, 1));
    printCosts(contenders, comparison);
}

/// Makes calls of one kind and nothing else, for a profiler.
int repeat(const FixedServer& server, const std::string& name, int calls)
{
    for (const Contender& contender : contendersAt(server.address(0))) {
        if (contender.name == name) {
            contender.run(calls);
            return 0;
        }
    }
    std::fprintf(stderr, "bench-calls: there is no '%s'\n", name.c_str());
    return 2;
}

} // namespace

} // namespace quorvel::bench

int main(int argc, char** argv)
{
    using namespace quorvel::bench;
    const FixedServer server(
        {fixedReply(smallReply), fixedReply(middleReply), fixedReply(largeReply)});
    QCoreApplication application(argc, argv);
    if (argc == 4 && std::strcmp(argv[1], "--repeat") == 0)
        return repeat(server, argv[2], std::atoi(argv[3]));
    const bool whole = !isSmokeRun(argc, argv);
    compareSmall(server, whole ? Effort{80, 100} : Effort{2, 2});
    compareSize(server, 1, "10 kB", whole ? Effort{60, 50} : Effort{2, 2});
    compareSize(server, 2, "1 MB", whole ? Effort{30, 1} : Effort{2, 1});
    return 0;
}
