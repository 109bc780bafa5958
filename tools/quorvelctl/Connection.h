#pragma once

#include "Gateway.h"

#include <QString>
#include <vector>

namespace quorvelctl
{

/// Parts of an internet connection that are read, shown and written together.
enum ConnectionPart {
    Ppp = 1,
    PppType = 2, ///< only where a write doesn't derive it from the link type
    Line = 4,    ///< what a DSL line needs: PVC, encapsulation, annex
    Vlan = 8,
    DhcpClient = 16,
    Vpn = 32,
    L2tp = 64,
    Addresses = 128
};

/// Over what a connection runs.
enum class Medium { Dsl, Ethernet };

/// A link type, by its word, and the parts that belong to it.
struct LinkType {
    const char* name;
    int parts;        ///< what there is to show of it, besides what its medium needs
    int overDsl;      ///< what a write over DSL sends besides the link type
    int overEthernet; ///< the same over Ethernet; `unknown` if a write doesn't know it there

    static constexpr int unknown = -1;

    int written(Medium medium) const { return medium == Medium::Dsl ? overDsl : overEthernet; }
};

/// The link type of this name; null if there is none.
const LinkType* findLinkType(const QString& name);
/// Names of those that a write over a medium knows.
std::vector<std::string> linkTypesOver(Medium medium);

/// The connection of a WAN: what can be written, and with it how it is doing.
struct Connection {
    quorvel::AspWanDetails wan;
    quorvel::AspAdslSettings settings;
    QString dslInstance = QStringLiteral("dsl-0");
    // Enumerations by their words; empty if unknown.
    QString supportedAnnexMode;
    QString currentAnnexMode;
    QString encapsulation;
    quorvel::AspPppoxState pppoxState;
    quorvel::AspDslStatus dslStatus;
};

/// How a text of a connection is used.
enum class Use {
    Shown,    ///< never written
    Optional, ///< written, also if it is empty
    Needed,   ///< a write of its part needs it
    Secret    ///< needed, hidden, and never given as an argument
};

/// What texts are taken for one of a connection.
enum class Form { Any, Address, Number, Annex, Annexes };

/// One text of a connection: an option where it is written, a line or a JSON key where it is shown.
struct ConnectionText {
    const char* name;    ///< as an option, without the dashes: "pppox-username"
    const char* meaning; ///< "PPP user name", "static IP address"
    int part;
    Use use;
    QString& (*in)(Connection& connection);
    Form form = Form::Any;
};

/// All texts, in the order in which they are shown.
const std::vector<ConnectionText>& connectionTexts();

/// The heading of a text: its meaning with a capital.
QString heading(const ConnectionText& text);
/// The JSON key of a text: "pppoxUsername".
QString jsonKey(const ConnectionText& text);

/// Names the entities of the connection's WAN as far as they aren't named yet. Gateways don't tell
/// a WAN's L2TP tunnel: if one of `parts` needs it and there is only one, it is that.
void nameEntities(Connection& connection, int parts, Gateway& gateway);

/// Reads some parts of a connection whose entities are named. With `withState` also what is only
/// shown and costs requests of its own.
void readConnection(Connection& connection, int parts, bool withState, Gateway& gateway,
                    quorvel::AspAdslSettingsFacade& facade);

/// The annex that a word means.
quorvel::AspAnnexMode annexNamed(const QString& word);

} // namespace quorvelctl
