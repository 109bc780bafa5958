#pragma once

#include "protocol/Latin1.h"

#include <QString>

/// The telephony's own commands and keys.
namespace quorvel::wire
{

inline constexpr QLatin1String allLineList = "AllLineList"_latin1;
inline constexpr QLatin1String voiceStatus = "status"_latin1;
inline constexpr QLatin1String dslPhoneNumber = "DslPhoneNumber"_latin1;

// Entries of a line, to be put behind its path.
inline constexpr QLatin1String sip = "SIP"_latin1;
inline constexpr QLatin1String sipAuthUserName = "SIP.AuthUserName"_latin1;
inline constexpr QLatin1String sipAuthPassword = "SIP.AuthPassword"_latin1;
inline constexpr QLatin1String sipUri = "SIP.URI"_latin1;
inline constexpr QLatin1String sipProxyServer = "SIP.Server[0].ProxyServer"_latin1;
inline constexpr QLatin1String sipUserAgentDomain = "SIP.UserAgentDomain"_latin1;
inline constexpr QLatin1String lineEnable = "Enable"_latin1;
inline constexpr QLatin1String lineTransmitGain = "VoiceProcessing.TransmitGain"_latin1;
inline constexpr QLatin1String lineReceiveGain = "VoiceProcessing.ReceiveGain"_latin1;

// Names under which a facade hands an account to an implementor.
inline constexpr QLatin1String authUserName = "AuthUserName"_latin1;
inline constexpr QLatin1String authPassword = "AuthPassword"_latin1;
inline constexpr QLatin1String uri = "URI"_latin1;
inline constexpr QLatin1String enable = "Enable"_latin1;

/// An entry of the line with that number.
inline QString lineEntry(const QString& line, QLatin1String entry)
{
    return QLatin1String("VoiceService.VoiceProfile.Line[") + line + QLatin1String("].") + entry;
}

} // namespace quorvel::wire
