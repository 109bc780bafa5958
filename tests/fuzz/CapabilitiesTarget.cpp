#include "fuzz/FedGateway.h"
#include "fuzz/Require.h"
#include "protocol/AspResponseParserV2.h"

#include <quorvel/AspWirelessSettingsFacadeNG.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <algorithm>

/// \file
/// The document by which a radio tells what it can do. An input is the radio's transmit mode, a
/// line feed and the document. What stands in the JSON tells what must stand in the tree.

namespace quorvel::fuzz
{

namespace
{

const QString radio = QStringLiteral("wireless-0");

/// The names of the entries that are objects themselves, in the tree's order.
QStringList objectsIn(const QJsonObject& object)
{
    QStringList names;
    for (auto entry = object.constBegin(); entry != object.constEnd(); ++entry) {
        if (entry.value().isObject())
            names.append(entry.key());
    }
    std::sort(names.begin(), names.end());
    return names;
}

QJsonObject inner(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key)).toObject();
}

/// A text as JSON has it arrives unchanged; what else may pass for one is not looked at.
void expectText(const QString& text, const QJsonObject& object, const char* key)
{
    const QJsonValue value = object.value(QLatin1String(key));
    if (value.isString())
        require(text == value.toString(), "a text arrives");
    else if (value.isUndefined())
        require(text.isEmpty(), "a missing text is empty");
}

void expectList(const QVariantList& list, const QJsonObject& object, const char* key)
{
    const QJsonValue value = object.value(QLatin1String(key));
    if (value.isArray())
        require(list.size() == value.toArray().size(), "a list arrives");
    else if (value.isUndefined())
        require(list.isEmpty(), "a missing list is empty");
}

void expectNode(const Bws& width, const QJsonObject& object)
{
    expectText(width.getText(), object, "text");
    expectList(width.getRates(), object, "rates");
}

void expectNode(const SecurityMode&, const QJsonObject&) {}

void expectNode(const Channel& channel, const QJsonObject& object)
{
    const QJsonValue frequency = object.value(QLatin1String("freqVal"));
    const double number = frequency.toDouble();
    if (number == qint32(qBound(-2e9, number, 2e9)))
        require(channel.getFreqVal() == number || !frequency.isDouble(), "a number arrives");
}

void expectNode(const Mode& mode, const QJsonObject& object);

/// A container has a node for each entry that is an object, in the order of their names.
template <typename Container>
void expectContainer(const boost::shared_ptr<Container>& container, const QJsonObject& parent,
                     const char* key)
{
    const QJsonValue value = parent.value(QLatin1String(key));
    require(bool(container) == value.isObject(), "a container stands for an object");
    if (!container)
        return;
    QStringList names;
    for (const auto& node : container->getItems()) {
        names.append(node->getName());
        expectNode(*node, value.toObject().value(node->getName()).toObject());
    }
    require(names == objectsIn(value.toObject()), "a container has its objects, in order");
}

void expectNode(const Mode& mode, const QJsonObject& object)
{
    expectText(mode.getText(), object, "text");
    expectText(mode.getDefaultChannelBw(), object, "defaultChannelBw");
    expectContainer(mode.getSecurityModes(), object, "securityModes");
    expectContainer(mode.getChanbws(), object, "chanbws");
}

void expectGhz(const boost::shared_ptr<Ghz>& ghz, const QJsonObject& band, const char* key)
{
    const QJsonObject object = inner(band, key);
    require(bool(ghz) == band.value(QLatin1String(key)).isObject(), "a band stands for an object");
    if (!ghz)
        return;
    require(ghz->getName() == QLatin1String(key), "a band bears its name");
    expectText(ghz->getText(), object, "text");
    expectText(ghz->getDefaultMode(), object, "defaultMode");
    expectText(ghz->getDefaultChannel(), object, "defaultChannel");
    expectContainer(ghz->getChannels(), object, "channels");
    expectContainer(ghz->getModes(), object, "modes");
}

void expectTree(const Capabilities& capabilities, const QJsonObject& root)
{
    expectList(capabilities.getOperationModes(), root, "operationModes");
    expectList(capabilities.getStaPrefix(), root, "staPrefix");
    expectList(capabilities.getApPrefix(), root, "apPrefix");
    expectList(capabilities.getWdsPrefix(), root, "wdsPrefix");
    require(bool(capabilities.getBand()) == root.value(QLatin1String("band")).isObject(),
            "the bands stand for an object");
    if (!capabilities.getBand())
        return;
    expectGhz(capabilities.getBand()->getGhz2400(), inner(root, "band"), "2400");
    expectGhz(capabilities.getBand()->getGhz5000(), inner(root, "band"), "5000");
}

QStringList securityModesIn(const QJsonObject& root, const char* band, const QString& txMode)
{
    // A radio that doesn't tell its mode has none, though a document could.
    if (txMode.isEmpty())
        return {};
    const QJsonObject modes = inner(inner(inner(root, "band"), band), "modes");
    return objectsIn(inner(modes.value(txMode).toObject(), "securityModes"));
}

/// What a reply says once it is parsed, which for an odd character may not be what was meant.
QString arriving(const QString& reply, const char* entry)
{
    ParamMap entries;
    AspResponseParserV2().parse(reply, entries);
    return entries.value(radio + QLatin1Char('.') + QLatin1String(entry));
}

/// Keys of all objects in a value.
int keysIn(const QVariant& value)
{
    int count = 0;
    if (value.type() == QVariant::Map) {
        const QVariantMap object = value.toMap();
        count += object.size();
        for (const QVariant& member : object)
            count += keysIn(member);
    } else if (value.type() == QVariant::List) {
        for (const QVariant& member : value.toList())
            count += keysIn(member);
    }
    return count;
}

/// Strings of a document that a colon follows.
int keysWrittenIn(const QString& document)
{
    static const QRegularExpression key(QStringLiteral(R"("(?:[^"\\]|\\.)*"\s*:)"),
                                        QRegularExpression::DotMatchesEverythingOption);
    int count = 0;
    for (auto match = key.globalMatch(document); match.hasNext(); match.next())
        ++count;
    return count;
}

/// What Qt reads in a document. Where keys are missing one may have been repeated: Qt would keep
/// the memory of what it drops, and so is not asked.
QJsonObject objectIn(const QString& document, const QVariantMap& read)
{
    if (keysWrittenIn(document) == keysIn(read))
        return QJsonDocument::fromJson(document.toUtf8()).object();
    return QJsonObject::fromVariantMap(read);
}

QString replyWith(const char* entry, const QString& value)
{
    return pairReply(radio, {{QLatin1String(entry), value}});
}

void run(const QString& txMode, const QString& document)
{
    // Gateways send one character more than the JSON.
    const QString capabilities = replyWith("wireless_capabilities", document + QLatin1Char('\n'));
    const QString mode = replyWith("txmode", txMode);
    const FedGateway gateway(true, {capabilities, mode, mode});
    AspWirelessSettingsFacadeNG facade(gateway.cpe);
    facade.setManager(radio);
    AspWebAppErrorCodes error;
    facade.getWirelessCapabilities(error);
    if (error != AspWebAppNoError)
        return;
    const QString arrived = arriving(capabilities, "wireless_capabilities");
    require(bool(facade.getCapabilities()), "an answer gives capabilities");
    const QJsonObject root = objectIn(arrived.chopped(1), facade.getCapabilities()->getData());
    expectTree(*facade.getCapabilities(), root);
    const char* bands[] = {"2400", "5000"};
    for (int band = 0; band < 2; ++band) {
        QStringList names = facade.getSupportSecurityModes(band);
        if (faultIsPlanted() && !names.isEmpty())
            names.append(names.first());
        require(names == securityModesIn(root, bands[band], arriving(mode, "txmode")),
                "the security modes are those of the transmit mode");
    }
}

} // namespace

} // namespace quorvel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QString input = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
    const int end = input.indexOf(QLatin1Char('\n'));
    quorvel::fuzz::run(input.left(end), input.mid(end + 1));
    return 0;
}
