#pragma once

#include <quorvel/AspFacade.h>
#include <quorvel/AspVoipAccount.h>
#include <quorvel/AspVoipCallHistory.h>
#include <quorvel/AspVoipCallHistoryFilter.h>
#include <quorvel/AspVoipSettings.h>

#include <QList>
#include <QString>
#include <cstdint>
#include <functional>

namespace quorvel
{

/// Told how far the reading of a call log is: `page` of `pages` has been asked for, and `error` is
/// what the reading would report if it ended there. Page 0 is the number of calls.
using AspVoipCallHistoryProgress =
    std::function<void(int page, int pages, AspWebAppErrorCodes error)>;

/// Telephony of a gateway: the accounts of its lines, their gains and the call log.
///
/// Blocking, events and errors are as told at AspFacade; every operation makes one exchange unless
/// it says otherwise. Unlike other facades, one object may be used from one thread at a time only:
/// it keeps the gain ranges. A gateway without telephony gives the stated default with
/// AspWebAppNoError, and nothing is sent.
///
/// Gains are percentages, 0 to 100, which the gateway stores in ranges of its own. Their ends come
/// from the host's configuration, read anew at each use: OSTRA_CONFIG_DEFAULT_FXS_MINGAIN and
/// OSTRA_CONFIG_DEFAULT_FXS_MAXGAIN for lines, OSTRA_CONFIG_DEFAULT_FXO_MINGAIN and
/// OSTRA_CONFIG_DEFAULT_FXO_MAXGAIN for the analogue port. A value that is no number leaves the
/// end as it was, at first 0. In a range without extent gains read as empty texts, and each one
/// that is written becomes its end. Percentages are rounded up in both directions, so what was
/// written may be read back higher.
///
/// An older generation of gateways serves only the write of an account: it reports no lines, gains
/// and calls.
class QUORVEL_API AspVoipSettingsFacade : public AspFacade
{
public:
    using AspFacade::AspFacade;

    /// Lines and analogue port with their gains, and whether telephony is on. A line whose state
    /// the gateway doesn't report is left out, and of the analogue port only id, type and gains are
    /// given. Empty on failure. `error` tells of the accounts and gains, not of the list of lines:
    /// if that can't be read there are no accounts. Gains that can't be read are empty. Three
    /// exchanges.
    AspVoipSettings getVoipAccounts(AspWebAppErrorCodes& error);
    /// Writes an account of the telephony object `entity`, which is "voice-0", puts it into effect
    /// and stores it; gains are not written. False if `account` is not marked as changed, and then
    /// nothing is sent. Otherwise false only if the request failed and left a trace; see `error`
    /// for the gateway's verdict. A gateway of the older generation receives empty texts.
    bool setVoipSettings(const QString& entity, AspVoipAccount account, AspWebAppErrorCodes& error);

    /// Asks for the gains without reading them: always an empty account, whose `error` tells
    /// whether the gateway has them. getVoipAccounts reads them.
    AspVoipAccount getGainSettings(AspWebAppErrorCodes& error);
    /// Writes the gains of `accounts` to the telephony object `entity`, which is "voice-0", puts
    /// them into effect and stores them. Only ids "0" and "1" are written: the gains of the
    /// analogue port stay as they are. An empty gain, or one that is no number, stays as it is too.
    /// False only if the request failed and left a trace; see `error` for the gateway's verdict.
    bool setGainSettings(const QString& entity, QList<AspVoipAccount> accounts,
                         AspWebAppErrorCodes& error);

    /// The calls that `filter` asks for, in the gateway's order. The log is fetched in pages of 20
    /// calls, an exchange each beside one for the number of calls. A page that can't be fetched is
    /// left out; `error` tells of the last exchange, or of an earlier one that nothing later
    /// overwrote. Empty on failure. The list ends with an empty call, whose time is "--::", if
    /// `filter` asks for kind 0 or for all kinds.
    ///
    /// No more than 20000 calls are believed to a gateway, so this blocks for 1002 exchanges at
    /// most. Aborting pending requests ends one page only.
    QList<AspVoipCallHistory> getVoipCallHistory(AspVoipCallHistoryFilter filter,
                                                 AspWebAppErrorCodes& error);
    /// The same, and calls `progress` after each exchange that succeeds or leaves out a page, on
    /// the calling thread: so a host can show how far it is, and knows of pages that are left out
    /// and of a gateway that doesn't tell the number of calls. An empty `progress` is not called;
    /// what it throws ends the reading.
    QList<AspVoipCallHistory> followVoipCallHistory(AspVoipCallHistoryFilter filter,
                                                    const AspVoipCallHistoryProgress& progress,
                                                    AspWebAppErrorCodes& error);

private:
    void getGainValues();

    std::int32_t fxsMinGain = 0;
    std::int32_t fxsMaxGain = 0;
    std::int32_t fxoMinGain = 0;
    std::int32_t fxoMaxGain = 0;
};

} // namespace quorvel
