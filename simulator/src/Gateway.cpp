#include "Gateway.h"

#include "Form.h"

#include <algorithm>

namespace quorvel::simulator
{

namespace
{

const char* const loginPath = "/cgi-bin/login";
const char* const webAppPath = "/cgi-bin/webapp";

FaultTarget targetOf(const HttpRequest& request)
{
    if (request.path == loginPath)
        return FaultTarget::Login;
    return request.path == webAppPath ? FaultTarget::WebApp : FaultTarget::Probe;
}

HttpReply page(int status, const std::string& text)
{
    HttpReply reply;
    reply.status = status;
    reply.contentType = "text/html";
    reply.body = "<!DOCTYPE html><html><body><p>" + text + "</p></body></html>\n";
    return reply;
}

// Only what a browser's first look at the gateway would get.
HttpReply frontPage(const HttpRequest& request)
{
    if (request.path != "/")
        return page(404, "There is no such page.");
    if (request.method == "GET" || request.method == "HEAD")
        return page(200, "This gateway is managed through its web application.");
    HttpReply refusal = page(405, "This page can only be read.");
    refusal.headers.emplace_back("Allow", "GET, HEAD");
    return refusal;
}

HttpReply postOnly()
{
    HttpReply refusal = page(405, "This address takes nothing but a POST.");
    refusal.headers.emplace_back("Allow", "POST");
    return refusal;
}

bool isKind(const std::optional<Fault>& fault, FaultKind kind)
{
    return fault && fault->kind == kind;
}

// A newer gateway understands the older dialect, but answers in its own.
bool understands(const std::string& dialect, const std::string& version)
{
    return version == dialect || (dialect == "1.0.1" && version == "1.0.0");
}

Script unanswered()
{
    Script script;
    script.end = Script::End::Close;
    return script;
}

} // namespace

Script Gateway::answer(const HttpRequest& request)
{
    const std::lock_guard lock(mutex);
    const FaultTarget target = targetOf(request);
    const auto fault = faults.forRequest(target, request.body);
    const Script script = serve(request, target, fault);
    record(request, script, fault);
    ++requests;
    counted.notify_all();
    return script;
}

Script Gateway::serve(const HttpRequest& request, FaultTarget target,
                      const std::optional<Fault>& fault)
{
    if (isKind(fault, FaultKind::PowerCut)) {
        current.restart(scenario);
        sessions.endAll();
        Script script;
        script.end = Script::End::Reset;
        script.down = downTime;
        return script;
    }
    const State stateBefore = current;
    const Sessions sessionsBefore = sessions;
    Served served = process(request, target, fault);
    if (fault && !fault->takesEffect) {
        current = stateBefore;
        sessions = sessionsBefore;
        served.goesDown = false;
    }
    Script script = fault ? spoiltScript(request, served.reply, *fault, scenario.dialect)
                          : scriptOf(request, served.reply);
    if (served.unanswered)
        script = unanswered();
    if (served.goesDown)
        script.down = downTime;
    return script;
}

Gateway::Served Gateway::process(const HttpRequest& request, FaultTarget target,
                                 const std::optional<Fault>& fault)
{
    if (target == FaultTarget::Probe)
        return {frontPage(request)};
    if (request.method != "POST")
        return {postOnly()};
    if (target == FaultTarget::Login)
        return {logIn(request)};
    return runWebApp(request, fault);
}

HttpReply Gateway::logIn(const HttpRequest& request)
{
    const auto form = readForm(request.body);
    const std::string password = valueIn(current.running.read(), "webui-0", "password");
    // Whether the cookie is there is the whole answer; the status is the same either way.
    if (formValue(form, "user") != scenario.user || formValue(form, "password") != password)
        return page(200, "The user name or the password is wrong.");
    HttpReply reply = page(200, "You are logged in.");
    reply.headers.emplace_back("Set-Cookie", "SID=" + sessions.open() + "; path=/");
    forgetEndedTransactions();
    return reply;
}

Gateway::Served Gateway::runWebApp(const HttpRequest& request, const std::optional<Fault>& fault)
{
    const std::string token = tokenInCookie(request.header("Cookie"));
    if (isKind(fault, FaultKind::SessionExpired))
        sessions.end(token);
    if (!sessions.use(token)) {
        forgetEndedTransactions();
        return {webAppReply({}, ErrorCode::UnknownSession)};
    }
    if (isKind(fault, FaultKind::ErrorCode))
        return {webAppReply({}, static_cast<ErrorCode>(argumentOf(*fault)))};
    Request commands;
    ErrorCode error = readRequest(request.body, commands);
    const auto* recorded = error == ErrorCode::None ? recordings.find(commands) : nullptr;
    if (recorded)
        return replayed(*recorded);
    if (error == ErrorCode::None && !understands(scenario.dialect, commands.version))
        error = ErrorCode::WrongDialect;
    Served served;
    if (error == ErrorCode::None)
        error = runRequest(commands, token, fault, served);
    if (error != ErrorCode::None)
        served.reply = webAppReply({}, error);
    return served;
}

Gateway::Served Gateway::replayed(const RecordedReply& recorded)
{
    Served served;
    served.reply.status = recorded.status;
    served.reply.body = recorded.body;
    served.unanswered = recorded.status == 0;
    return served;
}

ErrorCode Gateway::runRequest(const Request& request, const std::string& token,
                              const std::optional<Fault>& fault, Served& served)
{
    // A copy takes the changes, so that a refused command leaves nothing of its request behind.
    State changed = current;
    const auto live = sessions.tokens();
    Work work{scenario, changed, token, live};
    const int fails = isKind(fault, FaultKind::CommandFails) ? argumentOf(*fault) : 0;
    int number = 0;
    for (const Command& command : request.commands) {
        const ErrorCode error = ++number == fails ? ErrorCode::Failed : runCommand(work, command);
        if (error != ErrorCode::None)
            return error;
    }
    served.reply = webAppReply(work.reply, ErrorCode::None);
    settle(work, std::move(changed), served);
    return ErrorCode::None;
}

void Gateway::settle(Work& work, State&& changed, Served& served)
{
    current = std::move(changed);
    for (const std::string& token : work.endedSessions)
        sessions.end(token);
    served.goesDown = work.aftermath != Aftermath::None;
    if (work.aftermath == Aftermath::FactoryReset)
        current = State(scenario);
    else if (work.aftermath == Aftermath::Restart)
        current.restart(scenario);
    if (served.goesDown)
        sessions.endAll();
    forgetEndedTransactions();
}

void Gateway::forgetEndedTransactions()
{
    const auto live = sessions.tokens();
    for (auto open = current.transactions.begin(); open != current.transactions.end();) {
        const bool ended = std::find(live.begin(), live.end(), open->first) == live.end();
        open = ended || open->second.empty() ? current.transactions.erase(open) : std::next(open);
    }
}

HttpReply Gateway::webAppReply(const std::vector<Entry>& entries, ErrorCode error) const
{
    HttpReply reply;
    reply.body = writeReply(scenario.dialect, entries, error);
    return reply;
}

} // namespace quorvel::simulator
