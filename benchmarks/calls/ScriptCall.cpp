#include "calls/ScriptCall.h"

#include <QProcess>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace quorvel::bench
{

Contender scriptCall(const QString& address, const char* manner)
{
    // A script that is told nothing more ends by itself.
    const std::shared_ptr<QProcess> script(new QProcess, [](QProcess* process) {
        process->closeWriteChannel();
        process->waitForFinished();
        delete process;
    });
    script->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    script->start(QStringLiteral("python3"),
                  {QStringLiteral(QUORVEL_BENCH_SCRIPT), address, QString::fromLatin1(manner)});
    return {std::string("Python script, ") + manner, [script](int calls) {
                script->write(QByteArray::number(calls) + '\n');
                while (!script->canReadLine()) {
                    if (!script->waitForReadyRead(60000)) {
                        std::fputs("The Python script doesn't answer.\n", stderr);
                        std::exit(1);
                    }
                }
                const QList<QByteArray> fields = script->readLine().trimmed().split(' ');
                return Cost{fields.at(0).toDouble() / calls, fields.at(1).toDouble() / calls};
            }};
}

} // namespace quorvel::bench
