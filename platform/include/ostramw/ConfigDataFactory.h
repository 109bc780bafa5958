#pragma once

#include <ostra/OstraPlatformExport.h>

#include <QMap>
#include <QMutex>
#include <QString>

namespace ostramw
{

/// The configuration service from which the library reads the host's settings.
///
/// All operations may be called from any thread.
class OSTRA_PLATFORM_API ConfigDataFactory
{
public:
    /// The one service of the process, made at first use and never destroyed. Never null.
    static ConfigDataFactory* getInstance();

    /// The value that the host set for `key`; failing that, the one in the INI file named by the
    /// environment variable OSTRA_CONFIG_FILE; empty if neither holds the key.
    QString getConfigValue(const QString& key) const;

    /// Sets a value for the rest of the process. An empty value counts as set and hides the file's.
    void setConfigValue(const QString& key, const QString& value);

private:
    ConfigDataFactory() = default;

    mutable QMutex mutex;
    QMap<QString, QString> values;
};

} // namespace ostramw
