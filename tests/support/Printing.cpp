#include "support/Printing.h"

#include <ostream>

QT_BEGIN_NAMESPACE

void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    *out << '"' << bytes.toStdString() << '"';
}

void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << '[' << texts.join(QStringLiteral(", ")).toStdString() << ']';
}

QT_END_NAMESPACE
