#include "support/FixedReplies.h"

namespace quorvel::bench
{

namespace
{

QByteArray element(const QByteArray& name, const QByteArray& content)
{
    return '<' + name + '>' + content + "</" + name + '>';
}

QByteArray leaf(const QByteArray& name, const QByteArray& value)
{
    return element(name, value);
}

QByteArray pair(const QByteArray& name, const QByteArray& value)
{
    return element("dhcps-0", element("key", name) + element("value", value));
}

QByteArray leases(int count, QByteArray (*entry)(const QByteArray&, const QByteArray&))
{
    const char* const kinds[] = {".mac", ".name", ".ip"};
    QByteArray text;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i / 3);
        text += entry("lease" + number + kinds[i % 3], "00:16:3e:" + number) + '\n';
    }
    return text;
}

QByteArray reply(const QByteArray& content)
{
    return "<response version=\"1.0.1\">\n<webapp><error>0</error></webapp>\n"
           "<sysmgr-0><fwversion>6.2.14.9</fwversion></sysmgr-0>\n" +
           content + "</response>\n";
}

} // namespace

const QByteArray recognitionReply =
    reply("<devmgr-0><mngr0>devmgr</mngr0><mngr1>dsl</mngr1><mngr2>wan_vlan</mngr2>"
          "<mngr3>wan</mngr3><mngr4>voice</mngr4><mngr5>wireless</mngr5>"
          "<mngr6>wireless_core</mngr6><mngr7>usbhost_mngr</mngr7><mngr8>warranty</mngr8>"
          "</devmgr-0>\n<route-0><default_gw>wan-0</default_gw></route-0>\n"
          "<wan-0><isnewwan>1</isnewwan></wan-0>\n");

QByteArray fixedReply(int entries)
{
    const int others = entries - smallReply;
    return reply(others == 0 ? QByteArray() : element("dhcps-0", leases(others, leaf)));
}

QByteArray fixedReplyOfPairs(int entries)
{
    return reply(leases(entries - smallReply, pair));
}

} // namespace quorvel::bench
