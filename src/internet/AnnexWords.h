#pragma once

#include <quorvel/AspAnnexMode.h>

#include "access/ReplyReading.h"

namespace quorvel
{

/// What gateways call the annexes, in lower case.
inline constexpr Word<AspAnnexMode> annexWords[] = {
    {"a", AspAnnexA}, {"b", AspAnnexB}, {"ab", AspAnnexAB}};

/// The word that is sent for an annex; "a" for one without a word.
inline QString annexWord(AspAnnexMode annex)
{
    for (const Word<AspAnnexMode>& word : annexWords) {
        if (word.meaning == annex)
            return QLatin1String(word.text);
    }
    return QStringLiteral("a");
}

} // namespace quorvel
