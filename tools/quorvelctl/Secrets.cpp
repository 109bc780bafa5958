#include "Secrets.h"

#include "Failure.h"

#include <QFile>
#include <QRegularExpression>
#include <iostream>
#include <termios.h>
#include <unistd.h>

namespace quorvelctl
{

namespace
{

QString firstLineOf(const std::string& path)
{
    // Qt would complain on its own, too.
    if (path.empty())
        throw Failure{WrongUsage, QStringLiteral("can't read a file without a name")};
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly))
        throw Failure{WrongUsage,
                      QStringLiteral("can't read %1: %2").arg(file.fileName(), file.errorString())};
    QByteArray line = file.readLine();
    while (line.endsWith('\n') || line.endsWith('\r'))
        line.chop(1);
    return QString::fromUtf8(line);
}

/// While it lives, a terminal asks for a secret and doesn't show what is typed.
class QuietTerminal
{
public:
    explicit QuietTerminal(const std::string& meaning)
        : isTerminal(tcgetattr(STDIN_FILENO, &before) == 0)
    {
        if (!isTerminal)
            return;
        termios quiet = before;
        // No interruption either: it would leave the terminal quiet.
        quiet.c_lflag &= ~static_cast<tcflag_t>(ECHO | ISIG);
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &quiet);
        std::cerr << meaning << ": " << std::flush;
    }
    ~QuietTerminal()
    {
        if (!isTerminal)
            return;
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &before);
        std::cerr << '\n';
    }

private:
    Q_DISABLE_COPY(QuietTerminal)

    termios before;
    bool isTerminal;
};

QString nextLineOfStdin(const std::string& meaning)
{
    std::string line;
    const QuietTerminal terminal(meaning);
    if (!std::getline(std::cin, line))
        throw Failure{WrongUsage, QStringLiteral("standard input ends before the %1")
                                      .arg(QString::fromStdString(meaning))};
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return QString::fromStdString(line);
}

} // namespace

void SecretSource::addTo(commandline::Command command, const std::string& optionName,
                         const std::string& environmentVariable, const std::string& whatItIs)
{
    name = optionName;
    variable = environmentVariable;
    meaning = whatItIs;
    auto path = command
                    .addOption("--" + name + "-file", file,
                               "Read the " + meaning + " from the first line of this file")
                    .valueName("FILE");
    command
        .addFlag("--" + name + "-stdin", fromStdin,
                 "Read the " + meaning +
                     " from a line of standard input; without either option "
                     "it comes from the environment variable " +
                     variable)
        .excludes(path);
}

SecretSource SecretSource::inFile(const std::string& meaning, const std::string& path)
{
    SecretSource source;
    source.meaning = meaning;
    source.file = path;
    return source;
}

SecretSource SecretSource::onStdin(const std::string& meaning)
{
    SecretSource source;
    source.meaning = meaning;
    source.fromStdin = true;
    return source;
}

SecretSource SecretSource::inVariable(const std::string& meaning, const std::string& variable)
{
    SecretSource source;
    source.meaning = meaning;
    source.variable = variable;
    return source;
}

bool SecretSource::isGiven() const
{
    return isGivenByOption() || qEnvironmentVariableIsSet(variable.c_str());
}

QString SecretSource::read() const
{
    if (file)
        return firstLineOf(*file);
    if (fromStdin)
        return nextLineOfStdin(meaning);
    if (qEnvironmentVariableIsSet(variable.c_str()))
        return qEnvironmentVariable(variable.c_str());
    if (name.empty())
        throw Failure{WrongUsage,
                      QStringLiteral("no %1: there is no environment variable %2")
                          .arg(QString::fromStdString(meaning), QString::fromStdString(variable))};
    throw Failure{WrongUsage,
                  QStringLiteral("no %1: give --%2-file, --%2-stdin or the environment variable %3")
                      .arg(QString::fromStdString(meaning), QString::fromStdString(name),
                           QString::fromStdString(variable))};
}

QString hiddenSecret()
{
    return QStringLiteral("********");
}

QString withoutSecrets(const QString& line)
{
    // To the next label or the end: a secret may hold tabs and line breaks itself.
    static const QRegularExpression secret(
        QStringLiteral("((?:password:|SESSION: |Session ID: |session storage\\.\\.\\.) *)"
                       "(?!\\t[\\w ]+:).+?(?=\\t[\\w ]+:|$)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    return QString(line).replace(secret, QStringLiteral("\\1") + hiddenSecret());
}

} // namespace quorvelctl
