#pragma once

/// \file
/// What a radio of the newer generation can do, as a tree made from the JSON document by which its
/// gateway tells it. These classes stand outside any namespace.
///
/// AspWirelessSettingsFacadeNG::getCapabilities hands out a tree that is complete and changes no
/// more; a later fetch makes another and leaves it alone. So it may be read from any thread. A
/// parent shares its children, and a host that keeps one keeps what hangs on it.
///
/// Every node keeps the object from which it was made as its data, unknown keys included, and the
/// key under which that stood as its name. Whoever makes a node sets both and then calls parse(),
/// which reads the data into the other fields and makes the nodes below; before that they are
/// empty. Parsing can't fail: what is missing, or of a kind that can't be taken for the one
/// wanted, leaves its field empty, 0, or without a node.

#include <quorvel/QuorvelApi1Export.h>

#include <QList>
#include <QString>
#include <QVariant>
#include <boost/shared_ptr.hpp>

/// A security mode that goes with a transmit mode: its name is all that counts.
class QUORVEL_API SecurityMode
{
public:
    virtual ~SecurityMode();

    /// @{
    /// The node's data and name, as told of all nodes at the top of Capabilities.h.
    QVariantMap getData() const { return data; }
    void setData(const QVariantMap& value) { data = value; }
    QString getName() const { return name; }
    void setName(const QString& value) { name = value; }
    /// @}

private:
    QVariantMap data;
    QString name;
};

/// The security modes of a transmit mode, in the order of their names.
class QUORVEL_API SecurityModes
{
public:
    virtual ~SecurityModes();

    /// @{
    /// The node's data and name, as told of all nodes at the top of Capabilities.h.
    QVariantMap getData() const { return data; }
    void setData(const QVariantMap& value) { data = value; }
    QString getName() const { return name; }
    void setName(const QString& value) { name = value; }
    /// @}

    /// Empty before parse(). The nodes are shared, not copied.
    QList<boost::shared_ptr<SecurityMode>> getItems() const { return items; }

    void parse(); ///< Makes the fields and the nodes below from the data.

private:
    QVariantMap data;
    QString name;
    QList<boost::shared_ptr<SecurityMode>> items;
};

/// A channel width.
class QUORVEL_API Bws
{
public:
    virtual ~Bws();

    /// @{
    /// The node's data and name, as told of all nodes at the top of Capabilities.h.
    QVariantMap getData() const { return data; }
    void setData(const QVariantMap& value) { data = value; }
    QString getName() const { return name; }
    void setName(const QString& value) { name = value; }
    /// @}

    /// Display text.
    QString getText() const { return text; }
    /// Rates of the width, as the gateway lists them.
    QVariantList getRates() const { return rates; }

    void parse(); ///< Makes the fields and the nodes below from the data.

private:
    QVariantMap data;
    QString name;
    QString text;
    QVariantList rates;
};

/// The channel widths of a transmit mode, in the order of their names.
class QUORVEL_API Chanbws
{
public:
    virtual ~Chanbws();

    /// @{
    /// The node's data and name, as told of all nodes at the top of Capabilities.h.
    QVariantMap getData() const { return data; }
    void setData(const QVariantMap& value) { data = value; }
    QString getName() const { return name; }
    void setName(const QString& value) { name = value; }
    /// @}

    /// Empty before parse(). The nodes are shared, not copied.
    QList<boost::shared_ptr<Bws>> getItems() const { return items; }

    void parse(); ///< Makes the fields and the nodes below from the data.

private:
    QVariantMap data;
    QString name;
    QList<boost::shared_ptr<Bws>> items;
};

/// A transmit mode, as "bgn".
class QUORVEL_API Mode
{
public:
    virtual ~Mode();

    /// @{
    /// The node's data and name, as told of all nodes at the top of Capabilities.h.
    QVariantMap getData() const { return data; }
    void setData(const QVariantMap& value) { data = value; }
    QString getName() const { return name; }
    void setName(const QString& value) { name = value; }
    /// @}

    /// Display text.
    QString getText() const { return text; }
    /// Name of the width that the radio takes unless told otherwise.
    QString getDefaultChannelBw() const { return defaultChannelBw; }
    /// Null if the gateway tells none.
    boost::shared_ptr<SecurityModes> getSecurityModes() const { return securityModes; }
    /// Null if the gateway tells none.
    boost::shared_ptr<Chanbws> getChanbws() const { return chanbws; }

    void parse(); ///< Makes the fields and the nodes below from the data.

private:
    QVariantMap data;
    QString name;
    QString text;
    QString defaultChannelBw;
    boost::shared_ptr<SecurityModes> securityModes;
    boost::shared_ptr<Chanbws> chanbws;
};

/// The transmit modes of a band, in the order of their names.
class QUORVEL_API Modes
{
public:
    virtual ~Modes();

    /// @{
    /// The node's data and name, as told of all nodes at the top of Capabilities.h.
    QVariantMap getData() const { return data; }
    void setData(const QVariantMap& value) { data = value; }
    QString getName() const { return name; }
    void setName(const QString& value) { name = value; }
    /// @}

    /// Empty before parse(). The nodes are shared, not copied.
    QList<boost::shared_ptr<Mode>> getItems() const { return items; }

    void parse(); ///< Makes the fields and the nodes below from the data.

private:
    QVariantMap data;
    QString name;
    QList<boost::shared_ptr<Mode>> items;
};

/// A channel. Its numbers are stored as the gateway gives them; 0 where it gives none.
class QUORVEL_API Channel
{
public:
    virtual ~Channel();

    /// @{
    /// The node's data and name, as told of all nodes at the top of Capabilities.h.
    QVariantMap getData() const { return data; }
    void setData(const QVariantMap& value) { data = value; }
    QString getName() const { return name; }
    void setName(const QString& value) { name = value; }
    /// @}

    /// @{
    /// The number that the gateway gives under this name. What it means is the gateway's affair.
    qint32 getShow() const { return show; }
    qint32 getDfs() const { return dfs; }
    qint32 getFreqVal() const { return freqVal; }
    /// @}

    /// Flag of the one-touch pairing.
    qint32 getZenPair() const { return zenPair; }

    void parse(); ///< Makes the fields and the nodes below from the data.

private:
    QVariantMap data;
    QString name;
    qint32 show = 0;
    qint32 dfs = 0;
    qint32 zenPair = 0;
    qint32 freqVal = 0;
};

/// The channels of a band, in the order of their names as texts: "10" stands before "2".
class QUORVEL_API Channels
{
public:
    virtual ~Channels();

    /// @{
    /// The node's data and name, as told of all nodes at the top of Capabilities.h.
    QString getName() const { return name; }
    void setName(const QString& value) { name = value; }
    QVariantMap getData() const { return data; }
    void setData(const QVariantMap& value) { data = value; }
    /// @}

    /// Empty before parse(). The nodes are shared, not copied.
    QList<boost::shared_ptr<Channel>> getItems() const { return items; }

    void parse(); ///< Makes the fields and the nodes below from the data.

private:
    QString name;
    QVariantMap data;
    QList<boost::shared_ptr<Channel>> items;
};

/// A band of a radio.
class QUORVEL_API Ghz
{
public:
    virtual ~Ghz();

    /// @{
    /// The node's data and name, as told of all nodes at the top of Capabilities.h.
    QVariantMap getData() const { return data; }
    void setData(const QVariantMap& value) { data = value; }
    QString getName() const { return name; }
    void setName(const QString& value) { name = value; }
    /// @}

    /// Display text.
    QString getText() const { return text; }
    /// Name of the transmit mode that the radio takes unless told otherwise.
    QString getDefaultMode() const { return defaultMode; }
    /// Name of the channel that it takes unless told otherwise.
    QString getDefaultChannel() const { return defaultChannel; }
    /// Null if the gateway tells none.
    boost::shared_ptr<Channels> getChannels() const { return channels; }
    /// Null if the gateway tells none.
    boost::shared_ptr<Modes> getModes() const { return modes; }

    void parse(); ///< Makes the fields and the nodes below from the data.

private:
    QVariantMap data;
    QString name;
    QString text;
    QString defaultMode;
    QString defaultChannel;
    boost::shared_ptr<Channels> channels;
    boost::shared_ptr<Modes> modes;
};

/// The bands of a radio. Others than these two are only found in the data.
class QUORVEL_API Band
{
public:
    virtual ~Band();

    /// @{
    /// The node's data and name, as told of all nodes at the top of Capabilities.h.
    QVariantMap getData() const { return data; }
    void setData(const QVariantMap& value) { data = value; }
    QString getName() const { return name; }
    void setName(const QString& value) { name = value; }
    /// @}

    /// The 2.4 GHz band. Null if the gateway tells none.
    boost::shared_ptr<Ghz> getGhz2400() const { return ghz2400; }
    /// The 5 GHz band. Null if the gateway tells none.
    boost::shared_ptr<Ghz> getGhz5000() const { return ghz5000; }

    void parse(); ///< Makes the fields and the nodes below from the data.

private:
    QVariantMap data;
    QString name;
    boost::shared_ptr<Ghz> ghz2400;
    boost::shared_ptr<Ghz> ghz5000;
};

/// What a radio of the newer generation can do: the root of the tree.
class QUORVEL_API Capabilities
{
public:
    virtual ~Capabilities();

    /// @{
    /// The node's data and name, as told of all nodes at the top of Capabilities.h.
    QVariantMap getData() const { return data; }
    void setData(const QVariantMap& value) { data = value; }
    QString getName() const { return name; }
    void setName(const QString& value) { name = value; }
    /// @}

    /// Operation modes, as the gateway lists them.
    QVariantList getOperationModes() const { return operationModes; }
    /// As the gateway lists it.
    QVariantList getStaPrefix() const { return staPrefix; }
    /// As the gateway lists it.
    QVariantList getApPrefix() const { return apPrefix; }
    /// An element per mesh link that the radio can have.
    QVariantList getWdsPrefix() const { return wdsPrefix; }
    /// Null if the gateway tells none.
    boost::shared_ptr<Band> getBand() const { return band; }

    void parse(); ///< Makes the fields and the nodes below from the data.

private:
    QVariantMap data;
    QString name;
    QVariantList operationModes;
    QVariantList staPrefix;
    QVariantList apPrefix;
    QVariantList wdsPrefix;
    boost::shared_ptr<Band> band;
};
