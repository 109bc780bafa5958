#include <ostra/OstraLogger.h>
#include <ostramw/ConfigDataFactory.h>

#include <cstdio>

/// Prints the value of each key that is given, and logs a line of each usual level.
int main(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        const QString value = ostramw::ConfigDataFactory::getInstance()->getConfigValue(
            QString::fromLocal8Bit(argv[i]));
        std::printf("%s=%s\n", argv[i], value.toUtf8().constData());
    }
    OstraLogger* logger = OstraLogger::getInstance();
    for (const int level : {96, 128, 149, 150, 182})
        logger->log(QString::fromUtf8("line \xc3\xa4"), level, QStringLiteral("PROBE"));
    logger->setSink([](const QString&, int, const QString&) {});
    logger->log(QStringLiteral("swallowed"), 182, QStringLiteral("PROBE"));
    logger->setSink(OstraLogger::Sink());
    logger->log(QStringLiteral("default again"), 182, QStringLiteral("PROBE"));
    return 0;
}
