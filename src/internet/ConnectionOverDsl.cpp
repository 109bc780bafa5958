#include "internet/ConnectionCommands.h"
#include "internet/InternetKeys.h"

namespace quorvel
{

using namespace wire;

namespace
{

QString orDefault(const QString& text, QLatin1String otherwise)
{
    return text.isEmpty() ? QString(otherwise) : text;
}

Values pvcValues(const Connection& connection, const QString& pvc)
{
    const auto given = [&](QLatin1String key, QLatin1String otherwise) {
        return std::make_pair(QString(key), orDefault(connection.value(pvc, key), otherwise));
    };
    return {given(vpi, QLatin1String("8")), given(vci, QLatin1String("35")),
            given(vlanid, QLatin1String("35"))};
}

bool isAnnexSelectable(const Connection& connection)
{
    return connection.value(connection.dsl, annexes, QStringLiteral("a"))
               .compare(QLatin1String("AB"), Qt::CaseInsensitive) == 0;
}

CommandList pppCommands(const Connection& connection, const QString& pppox)
{
    const bool isPppoa = connection.type == pppoa;
    const QString mtu = isPppoa ? QStringLiteral("1500") : QStringLiteral("1492");
    const QString encapsulation = isPppoa ? QStringLiteral("VCMUX") : QStringLiteral("LLC");
    const QString pvcInstance = connection.entity(pvc);
    const QString rfc2684Instance = connection.entity(rfc2684);

    std::vector<std::pair<QString, Values>> objects{{pppox, pppValues(connection, pppox, mtu)}};
    if (!pvcInstance.isEmpty())
        objects.push_back({pvcInstance, pvcValues(connection, pvcInstance)});
    // The line that is written is always the first, whichever one was asked for its annexes.
    if (isAnnexSelectable(connection))
        objects.push_back(
            {dsl0, {{annex, connection.value(connection.dsl, annex, QStringLiteral("a"))}}});
    if (!rfc2684Instance.isEmpty())
        objects.push_back({rfc2684Instance, {{encaps, encapsulation}}});
    return writeTogether(objects);
}

} // namespace

CommandList commandsOverDsl(const Connection& connection)
{
    // The other link types change nothing but the WAN's type, whatever the entries hold for them.
    return linkTypeBlock(connection)
           << save()
           << branchCommands(connection, {{pppoe, pppox, &pppCommands},
                                          {pppoa, pppox, &pppCommands},
                                          {russianPppoe, pppox, &russianPppoeCommands},
                                          {staticAddress, staticAddress, &staticBlock}})
           << save();
}

} // namespace quorvel
