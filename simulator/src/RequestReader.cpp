#include "WebApp.h"

#include <QXmlStreamReader>

namespace quorvel::simulator
{

namespace
{

// An element that holds another one where text is due makes the reader fail.
bool readCommand(QXmlStreamReader& xml, Command& command)
{
    command.verb = xml.name().toString().toStdString();
    if (!xml.attributes().hasAttribute(QLatin1String("inst")))
        return false;
    command.instance = xml.attributes().value(QLatin1String("inst")).toString().toStdString();
    bool hasKey = false;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("key")) {
            command.key = xml.readElementText().toStdString();
            hasKey = true;
        } else if (xml.name() == QLatin1String("value")) {
            command.value = xml.readElementText().toStdString();
        } else {
            return false;
        }
    }
    return hasKey && !xml.hasError();
}

// Up to the root element. Nobody needs entities here, and they are how small requests grow large.
bool readStart(QXmlStreamReader& xml)
{
    while (!xml.atEnd() && xml.tokenType() != QXmlStreamReader::StartElement) {
        if (xml.readNext() == QXmlStreamReader::DTD)
            return false;
    }
    return !xml.hasError() && xml.name() == QLatin1String("xmlrequest");
}

bool readToEnd(QXmlStreamReader& xml)
{
    while (!xml.atEnd())
        xml.readNext();
    return !xml.hasError();
}

} // namespace

ErrorCode readRequest(const std::string& text, Request& request)
{
    QXmlStreamReader xml(QByteArray::fromRawData(text.data(), static_cast<int>(text.size())));
    if (!readStart(xml))
        return ErrorCode::Malformed;
    request.version = xml.attributes().value(QLatin1String("version")).toString().toStdString();
    while (xml.readNextStartElement()) {
        Command command;
        if (!readCommand(xml, command))
            return ErrorCode::Malformed;
        request.commands.push_back(std::move(command));
    }
    return readToEnd(xml) ? ErrorCode::None : ErrorCode::Malformed;
}

} // namespace quorvel::simulator
