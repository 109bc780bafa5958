#include "FaultPlan.h"

#include "State.h"
#include "WebApp.h"

#include <algorithm>

namespace quorvel::simulator
{

namespace
{

// Every command of a request has one key, so that they can be counted without reading it.
int commandNumber(const std::string& body)
{
    const std::string key = "<key>";
    int number = 0;
    for (auto place = body.find(key); place != std::string::npos; place = body.find(key, place + 1))
        ++number;
    return number;
}

// Whoever reaches the gateway through a radio loses it while that starts anew.
bool appliesRadio(const std::string& body)
{
    Request request;
    return readRequest(body, request) == ErrorCode::None &&
           std::any_of(request.commands.begin(), request.commands.end(), [](const auto& command) {
               const std::string manager = managerOf(command.instance);
               return command.verb == "command" && command.key == "apply" &&
                      (manager == "wireless" || manager == "wireless_ap" ||
                       manager == "wireless_core");
           });
}

bool fits(const Fault& fault, FaultTarget target, const std::string& body)
{
    const bool atCommand =
        fault.kind == FaultKind::CommandFails || fault.kind == FaultKind::PowerCut;
    const bool webAppOnly = atCommand || fault.kind == FaultKind::ErrorCode ||
                            fault.kind == FaultKind::SessionExpired ||
                            fault.kind == FaultKind::RadioRestart;
    const FaultTarget wanted = webAppOnly ? FaultTarget::WebApp : fault.target;
    if (fault.kind == FaultKind::Refuse || (atCommand && commandNumber(body) < argumentOf(fault)))
        return false;
    if (fault.kind == FaultKind::RadioRestart && !appliesRadio(body))
        return false;
    return (wanted == FaultTarget::Any || wanted == target) &&
           (fault.key.empty() || body.find("<key>" + fault.key + "</key>") != std::string::npos);
}

} // namespace

std::optional<Fault> FaultPlan::forRequest(FaultTarget target, const std::string& body)
{
    for (Active& candidate : active) {
        if (!fits(candidate.fault, target, body) || !strikes(candidate))
            continue;
        const Fault fault = candidate.fault;
        dropSpent();
        return fault;
    }
    return std::nullopt;
}

bool FaultPlan::closesPort() const
{
    return std::any_of(active.begin(), active.end(), [](const Active& candidate) {
        return candidate.fault.kind == FaultKind::Refuse && candidate.fault.times == 0;
    });
}

bool FaultPlan::resetsConnection()
{
    const auto refusal = std::find_if(active.begin(), active.end(), [](const Active& candidate) {
        return candidate.fault.kind == FaultKind::Refuse;
    });
    if (refusal == active.end() || !strikes(*refusal))
        return false;
    dropSpent();
    return true;
}

bool FaultPlan::strikes(Active& active)
{
    const bool recurs = active.fault.kind == FaultKind::SessionExpired;
    const int passes = active.fault.after + (recurs ? argumentOf(active.fault) : 0);
    if (active.passed < passes) {
        ++active.passed;
        return false;
    }
    if (recurs)
        active.passed = active.fault.after;
    ++active.used;
    return true;
}

void FaultPlan::dropSpent()
{
    active.erase(std::remove_if(active.begin(), active.end(),
                                [](const Active& candidate) {
                                    return candidate.fault.times > 0 &&
                                           candidate.used >= candidate.fault.times;
                                }),
                 active.end());
}

} // namespace quorvel::simulator
