#include "GainRanges.h"

#include "Failure.h"

#include <ostramw/ConfigDataFactory.h>

#include <QString>
#include <QStringList>

namespace quorvelctl
{

namespace
{

/// A range as the library's configuration knows it.
struct RangeKeys {
    QString min;
    QString max;
};

const RangeKeys ofLines{QStringLiteral("OSTRA_CONFIG_DEFAULT_FXS_MINGAIN"),
                        QStringLiteral("OSTRA_CONFIG_DEFAULT_FXS_MAXGAIN")};
const RangeKeys ofAnaloguePort{QStringLiteral("OSTRA_CONFIG_DEFAULT_FXO_MINGAIN"),
                               QStringLiteral("OSTRA_CONFIG_DEFAULT_FXO_MAXGAIN")};

QStringList endsOf(const std::string& range)
{
    return QString::fromStdString(range).split(QLatin1Char(':'));
}

/// What is wrong with a range as it was given; empty if nothing is.
std::string complaint(const std::string& range)
{
    const QStringList ends = endsOf(range);
    bool areNumbers = ends.size() == 2;
    for (const QString& end : ends) {
        bool isNumber = false;
        end.toInt(&isNumber);
        areNumbers = areNumbers && isNumber;
    }
    if (!areNumbers)
        return "a gain range is two numbers, as -10:10, and not " + range;
    return ends.first().toInt() < ends.last().toInt()
               ? std::string()
               : "a gain range goes from the lower number to the higher, and not " + range;
}

void configure(const RangeKeys& keys, const std::string& range)
{
    if (range.empty())
        return;
    auto* const service = ostramw::ConfigDataFactory::getInstance();
    service->setConfigValue(keys.min, endsOf(range).first());
    service->setConfigValue(keys.max, endsOf(range).last());
}

bool isKnown(const RangeKeys& keys)
{
    const auto* const service = ostramw::ConfigDataFactory::getInstance();
    bool hasMin = false;
    bool hasMax = false;
    const int min = service->getConfigValue(keys.min).toInt(&hasMin);
    const int max = service->getConfigValue(keys.max).toInt(&hasMax);
    // Every percentage of a range without extent is its end.
    return hasMin && hasMax && min != max;
}

[[noreturn]] void missRange(const QString& options)
{
    throw Failure{
        WrongUsage,
        QStringLiteral("no range in which the gateway stores gains: give %1").arg(options)};
}

} // namespace

void GainRanges::addTo(commandline::Command command)
{
    command
        .addOption("--line-range", lines, "Between which numbers the gateway stores lines' gains")
        .valueName("MIN:MAX")
        .check(complaint)
        .environment("QUORVELCTL_LINE_RANGE");
    command.addOption("--port-range", analoguePort, "The same for the gains of the analogue port")
        .valueName("MIN:MAX")
        .check(complaint)
        .environment("QUORVELCTL_PORT_RANGE");
}

void GainRanges::apply() const
{
    configure(ofLines, lines);
    configure(ofAnaloguePort, analoguePort);
}

void GainRanges::expectThatOfLines() const
{
    if (!isKnown(ofLines))
        missRange(QStringLiteral("--line-range"));
}

void GainRanges::expectAny() const
{
    if (!isKnown(ofLines) && !isKnown(ofAnaloguePort))
        missRange(QStringLiteral("--line-range or --port-range"));
}

} // namespace quorvelctl
