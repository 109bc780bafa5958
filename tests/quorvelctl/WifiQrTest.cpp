#include "QuorvelctlRun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

namespace quorvelctl::test
{

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{

const std::string heading = "Radio:   wireless_core-0\nNetwork: quorvel-2001\n";

/// What a reader sees in an image file; written by others, as a phone's is.
std::string readBack(const QString& path)
{
    QProcess reader;
    reader.start(QStringLiteral(QR_READER), {QStringLiteral("-1"), path});
    if (!reader.waitForFinished(100000) || reader.exitCode() != 0)
        ADD_FAILURE() << "nothing to be read in the code";
    const QString told = QString::fromUtf8(reader.readAllStandardOutput());
    return told.section(QLatin1Char('"'), 1, -2).toStdString();
}

/// An image of what half blocks draw, with 8 pixels to a side of a module.
QByteArray imageOf(const QString& picture)
{
    const QStringList lines = picture.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const int width = lines.first().size();
    QByteArray pixels;
    for (int y = 0; y < 16 * lines.size(); ++y) {
        for (int x = 0; x < 8 * width; ++x) {
            const ushort block = lines.at(y / 16).at(x / 8).unicode();
            const bool lower = y % 16 >= 8;
            const bool dark = block == 0x2588 || block == (lower ? 0x2584 : 0x2580);
            pixels += dark ? '\0' : '\xff';
        }
    }
    return QStringLiteral("P5 %1 %2 255\n").arg(8 * width).arg(16 * lines.size()).toLatin1() +
           pixels;
}

class QuorvelctlWifiQr : public QuorvelctlTest
{
protected:
    QuorvelctlWifiQr() : QuorvelctlTest("dual") {}

    QString pathOf(const char* name) const { return folder.filePath(QLatin1String(name)); }

    /// What is read in the code of the older radio.
    std::string invitation() const
    {
        const QString path = pathOf("code.png");
        const Outcome result = run("wifi qr --radio wireless_core-0 --png " + path.toStdString());
        EXPECT_EQ(result.status, 0) << result.errors;
        return readBack(path);
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(QuorvelctlWifiQr, TellsAPhoneNameAndKey)
{
    EXPECT_EQ(invitation(), "WIFI:T:WPA;S:quorvel-2001;P:radio-secret-2001;;");
}

TEST_F(QuorvelctlWifiQr, MasksWhatSeparatesTheParts)
{
    simulator.setValue("wireless_ap-0", "ssid", R"(a\b;c,d:e"f)");
    simulator.setValue("wireless_ap-0", "wpa_password", R"(;;\\""::,,)");
    EXPECT_EQ(invitation(), R"(WIFI:T:WPA;S:a\\b\;c\,d\:e\"f;P:\;\;\\\\\"\"\:\:\,\,;;)");
}

TEST_F(QuorvelctlWifiQr, TellsTheWepKeyInUse)
{
    simulator.setValue("wireless_ap-0", "sec_mode", "wep");
    simulator.setValue("wireless_ap-0", "wep_key_index", "2");
    simulator.setValue("wireless_ap-0", "wep_key1", "first");
    simulator.setValue("wireless_ap-0", "wep_key2", "other");
    EXPECT_EQ(invitation(), "WIFI:T:WEP;S:quorvel-2001;P:other;;");
    simulator.setValue("wireless_ap-0", "wep_key_index", "");
    EXPECT_EQ(invitation(), "WIFI:T:WEP;S:quorvel-2001;P:first;;");
}

TEST_F(QuorvelctlWifiQr, TellsNoKeyOfAnOpenNetwork)
{
    simulator.setValue("wireless_ap-0", "sec_mode", "off");
    EXPECT_EQ(invitation(), "WIFI:T:nopass;S:quorvel-2001;;");
}

TEST_F(QuorvelctlWifiQr, WritesAnImageThatNobodyElseMayRead)
{
    const QString path = pathOf("code.png");
    const Outcome result = run("wifi qr --radio wireless_core-0 --png " + path.toStdString());
    EXPECT_EQ(result.output, heading + "File:    " + path.toStdString() + "\n");
    EXPECT_EQ(QFileInfo(path).permissions() &
                  (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
              0);
}

TEST_F(QuorvelctlWifiQr, DrawsWhatAPhoneCanRead)
{
    const Outcome result = run("wifi qr --radio wireless_core-0");
    EXPECT_EQ(result.status, 0) << result.errors;
    ASSERT_THAT(result.output, StartsWith(heading));
    EXPECT_THAT(result.output, Not(HasSubstr("secret")));
    QFile image(pathOf("code.pgm"));
    ASSERT_TRUE(image.open(QIODevice::WriteOnly));
    image.write(imageOf(QString::fromStdString(result.output.substr(heading.size()))));
    image.close();
    EXPECT_EQ(readBack(image.fileName()), "WIFI:T:WPA;S:quorvel-2001;P:radio-secret-2001;;");
}

TEST_F(QuorvelctlWifiQr, GivesTheModulesAsJson)
{
    const std::string output = run("wifi qr --radio wireless_core-0 --json").output;
    EXPECT_THAT(output, HasSubstr("\"ssid\": \"quorvel-2001\""));
    EXPECT_THAT(output, HasSubstr("\"text\": \"********\""));
    // Behind the margin a corner begins, with 7 modules on a side.
    EXPECT_THAT(output, HasSubstr("        \"00001111111"));
    EXPECT_THAT(run("wifi qr --radio wireless_core-0 --json --show-secrets").output,
                HasSubstr("\"text\": \"WIFI:T:WPA;S:quorvel-2001;P:radio-secret-2001;;\""));
}

TEST_F(QuorvelctlWifiQr, DrawsNothingForANetworkThatNobodyCanJoin)
{
    const auto complaint = [&] {
        const Outcome result = run("wifi qr --radio wireless_core-0");
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.output, "");
        return result.errors;
    };
    const std::string start = "quorvelctl: no phone can be told how to join wireless_core-0: ";
    simulator.setValue("wireless_ap-0", "sec_mode", "802.1x");
    EXPECT_EQ(complaint(), start + "its security mode is '802.1x'\n");
    simulator.setValue("wireless_ap-0", "sec_mode", "wpa_both");
    simulator.setValue("wireless_ap-0", "wpa_password", "");
    EXPECT_EQ(complaint(), start + "its network has no key that all devices share\n");
    simulator.setValue("wireless_ap-0", "ssid", "");
    EXPECT_EQ(complaint(), start + "its network has no name\n");
    simulator.setValue("wireless_ap-0", "ssid", std::string(3000, 'x'));
    simulator.setValue("wireless_ap-0", "wpa_password", "new secret key");
    EXPECT_EQ(complaint(), "quorvelctl: name and key are too long for a QR code\n");
}

TEST_F(QuorvelctlWifiQr, WritesIntoAPipeAndDoesNotReplaceIt)
{
    const QByteArray pipe = QFile::encodeName(pathOf("pipe"));
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    // Open at this end, so that the other one need not wait.
    QFile reader;
    ASSERT_TRUE(reader.open(::open(pipe.constData(), O_RDONLY | O_NONBLOCK), QIODevice::ReadOnly,
                            QFile::AutoCloseHandle));
    const Outcome result = run("wifi qr --radio wireless_core-0 --png " + pipe.toStdString());
    EXPECT_EQ(result.status, 0) << result.errors;
    QFile image(pathOf("code.png"));
    ASSERT_TRUE(image.open(QIODevice::WriteOnly));
    image.write(reader.readAll());
    image.close();
    EXPECT_EQ(readBack(image.fileName()), "WIFI:T:WPA;S:quorvel-2001;P:radio-secret-2001;;");
    EXPECT_TRUE(!QFileInfo(pathOf("pipe")).isFile() && QFileInfo::exists(pathOf("pipe")));
}

TEST_F(QuorvelctlWifiQr, TellsAFileThatCanNotBeWritten)
{
    const Outcome result = run("wifi qr --radio wireless_core-0 --png /nonexistent/code.png");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, StartsWith("quorvelctl: can't write /nonexistent/code.png: "));
}

} // namespace quorvelctl::test
