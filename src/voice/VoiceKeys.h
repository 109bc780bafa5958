#pragma once

#include <QLatin1String>
#include <QString>

/// The telephony's own commands and keys.
namespace quorvel::wire
{

inline constexpr QLatin1String allLineList("AllLineList");
inline constexpr QLatin1String voiceStatus("status");
inline constexpr QLatin1String dslPhoneNumber("DslPhoneNumber");

// Entries of a line, to be put behind its path.
inline constexpr QLatin1String sip("SIP");
inline constexpr QLatin1String sipAuthUserName("SIP.AuthUserName");
inline constexpr QLatin1String sipAuthPassword("SIP.AuthPassword");
inline constexpr QLatin1String sipUri("SIP.URI");
inline constexpr QLatin1String sipProxyServer("SIP.Server[0].ProxyServer");
inline constexpr QLatin1String sipUserAgentDomain("SIP.UserAgentDomain");
inline constexpr QLatin1String lineEnable("Enable");
inline constexpr QLatin1String lineTransmitGain("VoiceProcessing.TransmitGain");
inline constexpr QLatin1String lineReceiveGain("VoiceProcessing.ReceiveGain");

// Names under which a facade hands an account to an implementor.
inline constexpr QLatin1String authUserName("AuthUserName");
inline constexpr QLatin1String authPassword("AuthPassword");
inline constexpr QLatin1String uri("URI");
inline constexpr QLatin1String enable("Enable");

/// An entry of the line with that number.
inline QString lineEntry(const QString& line, QLatin1String entry)
{
    return QLatin1String("VoiceService.VoiceProfile.Line[") + line + QLatin1String("].") + entry;
}

} // namespace quorvel::wire
