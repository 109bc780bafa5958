#include <ostra/OstraLogger.h>
#include <ostramw/ConfigDataFactory.h>

OstraLogger* OstraLogger::getInstance()
{
    static OstraLogger logger;
    return &logger;
}

void OstraLogger::log(const QString& message, int level, const QString& loggerName)
{
    if (sink)
        sink(message, level, loggerName);
}

void OstraLogger::setSink(Sink newSink)
{
    sink = newSink;
}

ostramw::ConfigDataFactory* ostramw::ConfigDataFactory::getInstance()
{
    static ConfigDataFactory factory;
    return &factory;
}

QString ostramw::ConfigDataFactory::getConfigValue(const QString& key) const
{
    return values.value(key);
}

void ostramw::ConfigDataFactory::setConfigValue(const QString& key, const QString& value)
{
    values.insert(key, value);
}
