#include <quorvel/Capabilities.h>

#include <boost/make_shared.hpp>

namespace
{

/// The value of an entry if it can be taken for the wanted kind, else a value that is none.
QVariant valueOf(const QVariantMap& data, const char* key, QVariant::Type kind)
{
    const QVariant value = data.value(QLatin1String(key));
    return value.canConvert(kind) ? value : QVariant();
}

// Each leaves its field alone if the entry is missing or of another kind.

void take(const QVariantMap& data, const char* key, QString& field)
{
    const QVariant value = valueOf(data, key, QVariant::String);
    if (value.isValid())
        field = value.toString();
}

void take(const QVariantMap& data, const char* key, QVariantList& field)
{
    const QVariant value = valueOf(data, key, QVariant::List);
    if (value.isValid())
        field = value.toList();
}

void take(const QVariantMap& data, const char* key, qint32& field)
{
    const QVariant value = valueOf(data, key, QVariant::Int);
    if (value.isValid())
        field = value.toInt();
}

void parseNode(SecurityMode&)
{
    // Nothing but its name is read.
}

template <typename Node>
void parseNode(Node& node)
{
    node.parse();
}

template <typename Node>
boost::shared_ptr<Node> makeNode(const QString& name, const QVariant& data)
{
    const auto node = boost::make_shared<Node>();
    node->setData(data.toMap());
    node->setName(name);
    parseNode(*node);
    return node;
}

template <typename Node>
void take(const QVariantMap& data, const char* key, boost::shared_ptr<Node>& field)
{
    const QVariant value = valueOf(data, key, QVariant::Map);
    if (value.isValid())
        field = makeNode<Node>(QLatin1String(key), value);
}

/// The nodes of a container: one for each entry that is an object, in the order of their keys.
template <typename Node>
QList<boost::shared_ptr<Node>> nodesOf(const QVariantMap& data)
{
    QList<boost::shared_ptr<Node>> nodes;
    for (auto entry = data.constBegin(); entry != data.constEnd(); ++entry) {
        if (entry->canConvert(QVariant::Map))
            nodes.append(makeNode<Node>(entry.key(), *entry));
    }
    return nodes;
}

} // namespace

Capabilities::~Capabilities() = default;
Band::~Band() = default;
Ghz::~Ghz() = default;
Channels::~Channels() = default;
Channel::~Channel() = default;
Modes::~Modes() = default;
Mode::~Mode() = default;
SecurityModes::~SecurityModes() = default;
SecurityMode::~SecurityMode() = default;
Chanbws::~Chanbws() = default;
Bws::~Bws() = default;

void Capabilities::parse()
{
    take(data, "operationModes", operationModes);
    take(data, "staPrefix", staPrefix);
    take(data, "apPrefix", apPrefix);
    take(data, "wdsPrefix", wdsPrefix);
    take(data, "band", band);
}

void Band::parse()
{
    take(data, "2400", ghz2400);
    take(data, "5000", ghz5000);
}

void Ghz::parse()
{
    take(data, "text", text);
    take(data, "defaultMode", defaultMode);
    take(data, "defaultChannel", defaultChannel);
    take(data, "channels", channels);
    take(data, "modes", modes);
}

void Channels::parse()
{
    items = nodesOf<Channel>(data);
}

void Channel::parse()
{
    take(data, "show", show);
    take(data, "dfs", dfs);
    take(data, "zenPair", zenPair);
    take(data, "freqVal", freqVal);
}

void Modes::parse()
{
    items = nodesOf<Mode>(data);
}

void Mode::parse()
{
    take(data, "text", text);
    take(data, "defaultChannelBw", defaultChannelBw);
    take(data, "securityModes", securityModes);
    take(data, "chanbws", chanbws);
}

void SecurityModes::parse()
{
    items = nodesOf<SecurityMode>(data);
}

void Chanbws::parse()
{
    items = nodesOf<Bws>(data);
}

void Bws::parse()
{
    take(data, "text", text);
    take(data, "rates", rates);
}
