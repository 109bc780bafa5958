#include "QrCode.h"

#include "Failure.h"

#include <QStringList>
#include <memory>
#include <png.h>
#include <qrencode.h>

namespace quorvelctl
{

namespace
{

/// Modules that must stay light on each side.
const int margin = 4;

} // namespace

QrCode::QrCode(const QByteArray& content)
{
    const std::unique_ptr<QRcode, decltype(&QRcode_free)> code(
        QRcode_encodeData(content.size(), reinterpret_cast<const unsigned char*>(content.data()), 0,
                          QR_ECLEVEL_M),
        QRcode_free);
    if (!code)
        throw Failure{GatewayFailed, QStringLiteral("name and key are too long for a QR code")};
    side = code->width + 2 * margin;
    modules.fill('\0', side * side);
    for (int row = 0; row < code->width; ++row) {
        for (int column = 0; column < code->width; ++column) {
            // The lowest bit is the colour; the others tell how the code is made up.
            const int module = code->data[row * code->width + column] & 1;
            modules[(row + margin) * side + column + margin] = static_cast<char>(module);
        }
    }
}

bool QrCode::isDark(int row, int column) const
{
    return row < side && modules.at(row * side + column) != 0;
}

QString QrCode::halfBlocks() const
{
    // Neither half, the upper, the lower, both.
    const QChar blocks[] = {QLatin1Char(' '), QChar(0x2580), QChar(0x2584), QChar(0x2588)};
    QString text;
    for (int row = 0; row < side; row += 2) {
        for (int column = 0; column < side; ++column)
            text += blocks[isDark(row, column) + 2 * isDark(row + 1, column)];
        text += QLatin1Char('\n');
    }
    return text;
}

QString QrCode::colouredHalfBlocks() const
{
    QString text;
    const QStringList lines = halfBlocks().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines)
        text += QLatin1String("\033[38;5;16;48;5;231m") + line + QLatin1String("\033[0m\n");
    return text;
}

QByteArray QrCode::png(int pixels) const
{
    const int width = side * pixels;
    QByteArray grey(width * width, '\xff');
    for (int y = 0; y < width; ++y) {
        for (int x = 0; x < width; ++x) {
            if (isDark(y / pixels, x / pixels))
                grey[y * width + x] = '\0';
        }
    }
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = image.height = static_cast<png_uint_32>(width);
    image.format = PNG_FORMAT_GRAY;
    png_alloc_size_t length = PNG_IMAGE_PNG_SIZE_MAX(image);
    QByteArray file(static_cast<int>(length), '\0');
    if (!png_image_write_to_memory(&image, file.data(), &length, 0, grey.constData(), 0, nullptr))
        throw Failure{
            GatewayFailed,
            QStringLiteral("can't draw the QR code: %1").arg(QString::fromLatin1(image.message))};
    file.truncate(static_cast<int>(length));
    return file;
}

} // namespace quorvelctl
