#pragma once

#include <quorvel/AspFacade.h>

#include "access/ReplyReading.h"
#include "assembly/Cpe.h"
#include "protocol/Log.h"
#include "protocol/ParamKeys.h"

#include <QList>
#include <QString>
#include <functional>
#include <initializer_list>
#include <utility>

namespace quorvel
{

/// One call of a facade's operation: the shape that all of them share stands here.
///
/// Regular operations are one `fetch` or `change`. Those that differ take the steps one by one:
/// construct, test with isPermitted, `ask`, read `reply`, `reportError`.
class FacadeCall
{
public:
    /// Judges the gateway and overwrites `error` with the verdict.
    FacadeCall(AspFacade& facade, AspWebAppErrorCodes& error) : facade(facade), error(error)
    {
        error = facade.validateCpe();
        permitted = error == AspWebAppNoError;
    }

    /// Whether the gateway can be asked. If not, nothing else may be called.
    bool isPermitted() const { return permitted; }

    const boost::shared_ptr<Cpe>& cpe() const { return facade.cpe; }

    /// Calls an operation of the implementor that `family` gives, with `inputs` and the reply map
    /// behind them. False if the gateway lacks the family; then nothing is sent.
    template <typename Family, typename Operation, typename... Inputs>
    bool ask(Family family, Operation operation, Inputs&&... inputs)
    {
        // Kept for the length of the call, whatever happens to the gateway's handle meanwhile.
        const auto implementor = std::invoke(family, *facade.cpe);
        asked = asked || implementor;
        return implementor &&
               std::invoke(operation, *implementor, std::forward<Inputs>(inputs)..., answer);
    }

    /// What came back so far.
    ParamMap& reply() { return answer; }

    /// Whether a family was asked and nothing came back, not even the trace of a failure.
    bool lostReply() const { return asked && answer.isEmpty(); }

    /// Overwrites the error with what the reply says.
    void reportError() { error = facade.getErrorCode(answer); }

private:
    AspFacade& facade;
    AspWebAppErrorCodes& error;
    ParamMap answer;
    bool asked = false;
    bool permitted;
};

/// An operation of a family bound to its inputs, ready to be asked for its reply.
template <typename Family, typename Operation, typename... Inputs>
auto asking(Family family, Operation operation, const Inputs&... inputs)
{
    return [=, &inputs...](FacadeCall& call) { return call.ask(family, operation, inputs...); };
}

/// The shape of a getter: on success `decode` reads the reply, on failure `failureLine` is logged
/// at ERROR unless it is null.
template <typename Request, typename Decode>
void fetch(AspFacade& facade, AspWebAppErrorCodes& error, Request request, Decode decode,
           const char* failureLine)
{
    FacadeCall call(facade, error);
    if (!call.isPermitted())
        return;
    if (request(call))
        decode(static_cast<const ParamMap&>(call.reply()));
    else if (failureLine)
        logError(QLatin1String(failureLine));
    call.reportError();
}

/// A getter of one text: the value under `key`, logged at DEBUG behind `label`.
template <typename Request>
QString fetchText(AspFacade& facade, AspWebAppErrorCodes& error, Request request,
                  const QString& key, const char* label, const char* failureLine)
{
    QString text;
    fetch(
        facade, error, request,
        [&](const ParamMap& reply) {
            text = reply.value(key);
            logDebug(QLatin1String(label) + text);
        },
        failureLine);
    return text;
}

/// A getter of a list: the values of the whole reply in key order but for the entries `leftOut`,
/// logged at DEBUG behind `label` with their keys.
template <typename Request>
QList<QString> fetchList(AspFacade& facade, AspWebAppErrorCodes& error, Request request,
                         const char* label, const char* failureLine,
                         std::initializer_list<QString> leftOut = {responseKey, webappErrorKey})
{
    QList<QString> values;
    fetch(
        facade, error, request,
        [&](const ParamMap& reply) {
            QString listing;
            values = listedValues(reply, leftOut, listing);
            logDebug(QLatin1String(label) + listing);
        },
        failureLine);
    return values;
}

/// The shape of a setter: the implementor's verdict is the result. `settle` gets it before the
/// error is reported, for the lines or consequences that an operation has.
template <typename Request, typename Settle>
bool change(AspFacade& facade, AspWebAppErrorCodes& error, Request request, Settle settle)
{
    FacadeCall call(facade, error);
    if (!call.isPermitted())
        return false;
    const bool done = request(call);
    settle(done);
    call.reportError();
    return done;
}

/// A setter for which a lost reply counts as success: false only if the request failed and left a
/// trace, or could not be made at all.
template <typename Request>
bool changeUnlessDenied(AspFacade& facade, AspWebAppErrorCodes& error, Request request)
{
    FacadeCall call(facade, error);
    if (!call.isPermitted())
        return false;
    const bool done = request(call) || call.lostReply();
    call.reportError();
    return done;
}

/// A setter without lines or consequences.
template <typename Request>
bool change(AspFacade& facade, AspWebAppErrorCodes& error, Request request)
{
    return change(facade, error, request, [](bool) {});
}

} // namespace quorvel
