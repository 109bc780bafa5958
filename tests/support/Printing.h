#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <iosfwd>

QT_BEGIN_NAMESPACE

// Found by GoogleTest, so that a failed comparison shows the texts.
void PrintTo(const QString& text, std::ostream* out);
void PrintTo(const QByteArray& bytes, std::ostream* out);
void PrintTo(const QStringList& texts, std::ostream* out);

QT_END_NAMESPACE
