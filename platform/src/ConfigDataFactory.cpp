#include <ostramw/ConfigDataFactory.h>

#include <QMutexLocker>
#include <QSettings>
#include <QStringList>
#include <QVariant>

namespace ostramw
{

ConfigDataFactory* ConfigDataFactory::getInstance()
{
    // Never destroyed, like the logger: the host's late objects may still ask it.
    static ConfigDataFactory* const instance = new ConfigDataFactory;
    return instance;
}

QString ConfigDataFactory::getConfigValue(const QString& key) const
{
    QMutexLocker locker(&mutex);
    const auto found = values.constFind(key);
    if (found != values.constEnd())
        return *found;
    const QString file = qEnvironmentVariable("OSTRA_CONFIG_FILE");
    if (file.isEmpty())
        return QString();
    // What holds commas is read as a list.
    const QVariant value = QSettings(file, QSettings::IniFormat).value(key);
    return value.toStringList().join(QLatin1Char(','));
}

void ConfigDataFactory::setConfigValue(const QString& key, const QString& value)
{
    QMutexLocker locker(&mutex);
    values.insert(key, value);
}

} // namespace ostramw
