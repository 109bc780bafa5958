#pragma once

#include <QByteArray>
#include <QString>

namespace quorvelctl
{

/// A QR code, with the margin that readers need around it.
class QrCode
{
public:
    /// Fails if the content is too long for any QR code.
    explicit QrCode(const QByteArray& content);

    /// Modules on a side, margin included.
    int size() const { return side; }
    bool isDark(int row, int column) const;

    /// Two rows of modules to a line, dark ones drawn.
    QString halfBlocks() const;
    /// The lines of it in black on white, whatever the colours of the terminal are.
    QString colouredHalfBlocks() const;
    /// As an image with so many pixels to a side of a module.
    QByteArray png(int pixels) const;

private:
    int side = 0;
    QByteArray modules;
};

} // namespace quorvelctl
