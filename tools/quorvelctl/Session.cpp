#include "Session.h"

#include "Failure.h"

#include <QScopeGuard>
#include <iostream>
#include <sstream>
#include <string>

namespace quorvelctl
{

const quorvel::AuthenticationInfo& Session::login()
{
    if (!credentials)
        credentials = std::make_unique<quorvel::AuthenticationInfo>(
            quorvel::AuthenticationInfo{options.user(), options.password(), options.address()});
    return *credentials;
}

Gateway& Session::gateway()
{
    if (!opened)
        opened = std::make_unique<Gateway>(login(), watch, via);
    return *opened;
}

void Session::reachVia(const QString& address)
{
    via = address;
    opened.reset();
}

QByteArray Session::collectJson(const std::function<void()>& run)
{
    std::ostringstream collected;
    const auto undo = qScopeGuard([this, json = options.json, printed = results] {
        options.json = json;
        results = printed;
    });
    options.json = true;
    results = &collected;
    run();
    return QByteArray::fromStdString(collected.str());
}

QString Session::readSecret(const SecretSource& source)
{
    login();
    return source.read();
}

void Session::applyLogLevel()
{
    watch.show(options.logLevel(), options.showSecrets);
}

void Session::confirm(const QString& question) const
{
    std::cerr << question.toStdString() << " [y/N] " << std::flush;
    std::string answer;
    std::getline(std::cin, answer);
    if (answer != "y" && answer != "yes")
        throw Failure{WrongUsage, QStringLiteral("not confirmed, nothing was sent")};
}

} // namespace quorvelctl
