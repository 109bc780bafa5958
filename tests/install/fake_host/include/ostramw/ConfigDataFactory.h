#pragma once

#include <QMap>
#include <QString>

namespace ostramw
{

class ConfigDataFactory
{
public:
    static ConfigDataFactory* getInstance();
    QString getConfigValue(const QString& key) const;
    void setConfigValue(const QString& key, const QString& value);

private:
    QMap<QString, QString> values;
};

} // namespace ostramw
