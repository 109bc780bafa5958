#include "commands/WifiCommands.h"

#include "Failure.h"
#include "QrCode.h"
#include "Radios.h"
#include "Session.h"

#include <QFileInfo>
#include <QSaveFile>
#include <unistd.h>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

const int pixelsOfAModule = 8;

QString escaped(const QString& text)
{
    QString safe;
    for (const QChar character : text) {
        if (QStringLiteral("\\;,:\"").contains(character))
            safe += QLatin1Char('\\');
        safe += character;
    }
    return safe;
}

/// What a phone reads that is to join the radio's network.
QString invitationTo(const Radio& radio, const AspWirelessSettings& settings)
{
    const auto fail = [&](const QString& why) {
        throw Failure{
            GatewayFailed,
            QStringLiteral("no phone can be told how to join %1: %2").arg(radio.name(), why)};
    };
    const Protection protection = protectionOf(settings.securityMode);
    if (settings.ssid.isEmpty())
        fail(QStringLiteral("its network has no name"));
    if (protection == Protection::Unknown)
        fail(QStringLiteral("its security mode is '%1'").arg(settings.securityMode));
    const QString name = QLatin1String(";S:") + escaped(settings.ssid);
    if (protection == Protection::None)
        return QLatin1String("WIFI:T:nopass") + name + QLatin1String(";;");
    const bool wpa = protection == Protection::Wpa;
    const QString key = wpa ? settings.wpaPassword : settings.wepKeys[wepKeyInUse(settings)];
    if (key.isEmpty())
        fail(QStringLiteral("its network has no key that all devices share"));
    return QLatin1String(wpa ? "WIFI:T:WPA" : "WIFI:T:WEP") + name + QLatin1String(";P:") +
           escaped(key) + QLatin1String(";;");
}

/// As text, a row to a line, for programs that draw for themselves.
QJsonArray rowsOf(const QrCode& code)
{
    QJsonArray rows;
    for (int row = 0; row < code.size(); ++row) {
        QString line;
        for (int column = 0; column < code.size(); ++column)
            line += QLatin1Char(code.isDark(row, column) ? '1' : '0');
        rows.append(line);
    }
    return rows;
}

bool write(QFileDevice& file, const QByteArray& image)
{
    return file.write(image) == image.size() && file.flush();
}

/// Only the owner may read it, as it gives the key away.
bool replaceFile(QSaveFile& file, const QByteArray& image)
{
    file.setDirectWriteFallback(true);
    return file.open(QIODevice::WriteOnly) &&
           file.setPermissions(QSaveFile::ReadOwner | QSaveFile::WriteOwner) &&
           write(file, image) && file.commit();
}

void save(const QByteArray& image, const QString& path)
{
    const auto expect = [&](bool saved, const QFileDevice& file) {
        if (!saved)
            throw Failure{GatewayFailed,
                          QStringLiteral("can't write %1: %2").arg(path, file.errorString())};
    };
    const QFileInfo place(path);
    // A device or a pipe takes the image itself, and isn't to be replaced by a file.
    if (place.exists() && !place.isFile() && !place.isDir()) {
        QFile file(path);
        expect(file.open(QIODevice::WriteOnly) && write(file, image), file);
    } else {
        QSaveFile file(path);
        expect(replaceFile(file, image), file);
    }
}

void qr(Session& session, const std::string& name, const std::string& png)
{
    const Radio radio = Radios(session.gateway()).one(name);
    const AspWirelessSettings settings = radio.settings();
    const QString invitation = invitationTo(radio, settings);
    const QrCode code(invitation.toUtf8());
    Record record{plainField("radio", "Radio", radio.name()),
                  plainField("ssid", "Network", settings.ssid)};
    const Output output = session.output();
    if (!png.empty()) {
        const QString path = QString::fromStdString(png);
        save(code.png(pixelsOfAModule), path);
        output.print(record << plainField("file", "File", path));
    } else if (session.options.json) {
        output.print(record << secretField(QStringLiteral("text"), QString(), invitation)
                            << plainField("rows", "", rowsOf(code)));
    } else {
        output.print(record);
        output.printPicture(isatty(STDOUT_FILENO) ? code.colouredHalfBlocks() : code.halfBlocks());
    }
}

} // namespace

void addWifiQr(commandline::Command group, Session& session)
{
    auto command = group.addCommand(
        "qr", "Show the QR code with which a phone joins the network of a radio, key included");
    command.addRemark("To ask for the code is to ask for the key: it is in the code in clear, with "
                      "--show-secrets and without.");
    const auto radio = addRadioOption(command);
    const auto png = std::make_shared<std::string>();
    command
        .addOption("--png", *png, "Write it to this file as a PNG image, for nobody else to read")
        .valueName("FILE")
        .check([](const std::string& path) {
            return std::string(path.empty() ? "it needs a name" : "");
        });
    command.callback([&session, radio, png] { qr(session, *radio, *png); });
}

} // namespace quorvelctl
