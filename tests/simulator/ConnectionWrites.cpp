#include "ConnectionWrites.h"

namespace quorvel::simulator::tests
{

namespace
{

const Lines save{"command cfgmgr-0 save"};

// One step for several objects.
Lines step(const std::string& key, const Lines& instances)
{
    Lines lines;
    for (const std::string& instance : instances)
        lines.push_back("command cfgmgr-0 " + key + " " + instance);
    return lines;
}

Lines apply(const Lines& instances)
{
    Lines lines;
    for (const std::string& instance : instances)
        lines.push_back("command " + instance + " apply");
    return lines;
}

Lines transaction(const std::string& instance, const Lines& sets)
{
    Lines lines = step("begin_transaction", {instance});
    for (const std::string& set : sets)
        lines.push_back("set " + instance + " " + set);
    return joined({lines, step("commit", {instance}), step("end_transaction", {instance})});
}

} // namespace

Lines joined(std::initializer_list<Lines> blocks)
{
    Lines lines;
    for (const Lines& block : blocks)
        lines.insert(lines.end(), block.begin(), block.end());
    return lines;
}

Lines block(const std::string& instance, const Lines& sets)
{
    return joined({transaction(instance, sets), apply({instance})});
}

Lines linkType(const std::string& wan, const std::string& type)
{
    return block(wan, {"type " + type, "linktype " + type});
}

Lines overEthernet(const std::string& type, const Lines& entity)
{
    return joined({linkType("wan-1", type), block("wan_vlan-0", {"vlanid 12"}), entity, save});
}

Lines pppoeOverEthernet()
{
    return overEthernet("pppoe", block("pppox-1", {"type pppoe", "username ada@example.net",
                                                   "password engine", "mtu 1492"}));
}

Lines tunnelOverEthernet(const std::string& type, const std::string& entity)
{
    return overEthernet(type, joined({transaction(entity, {"enabled 1", "type pptp",
                                                           "server 192.0.2.99", "username-0 ada",
                                                           "password-0 engine", "defaultroute 1"}),
                                      save, apply({entity, "dhcpc-0"})}));
}

Lines staticOverEthernet()
{
    return overEthernet("static",
                        block("static-1", {"ip 198.51.100.200", "mask 255.255.255.0",
                                           "gateway 198.51.100.1", "dns1 192.0.2.53", "dns2"}));
}

Lines pppoeOverDsl()
{
    const Lines changed{"pppox-0", "pvc-0", "dsl-0", "rfc2684-0"};
    return joined({linkType("wan-0", "pppoe"),
                   save,
                   {"command cfgmgr-0 begin_transaction pppox-0", "set pppox-0 type pppoe",
                    "set pppox-0 username ada@example.net", "set pppox-0 password engine",
                    "set pppox-0 mtu 1492", "command cfgmgr-0 begin_transaction pvc-0",
                    "set pvc-0 vpi 1", "set pvc-0 vci 32", "set pvc-0 vlanid 33",
                    "command cfgmgr-0 begin_transaction dsl-0", "set dsl-0 annex b",
                    "command cfgmgr-0 begin_transaction rfc2684-0", "set rfc2684-0 encaps VCMUX"},
                   step("commit", changed),
                   step("end_transaction", changed),
                   apply(changed),
                   save});
}

Lines staticOverDsl()
{
    return joined({linkType("wan-0", "static"), save,
                   block("static-0", {"ip 198.51.100.201", "mask 255.255.255.0",
                                      "gateway 198.51.100.1", "dns1 192.0.2.53", "dns2"}),
                   save});
}

Lines defaultGateway(const std::string& wan)
{
    return joined({transaction("route-0", {"default_gw " + wan}),
                   transaction(wan, {"enabled 1"}),
                   save,
                   {"command route-0 apply_default_gw"},
                   apply({wan})});
}

Lines switchToDsl()
{
    return joined({transaction("route-0", {"default_gw wan-0"}),
                   {"command route-0 apply_default_gw"},
                   block("wan-0", {"enabled 1"}),
                   block("wan-1", {"enabled 0"})});
}

Lines addedEntity(const std::string& wan, const std::string& type, const std::string& fresh)
{
    return joined(
        {{"set " + fresh + " enabled 1", "command cfgmgr-0 commit " + fresh,
          "command cfgmgr-0 end_transaction " + fresh, "command devmgr-0 start_inst " + fresh},
         transaction(wan, {"add_entity " + type + ":" + fresh}),
         save,
         apply({fresh, wan})});
}

Lines deletedEntity(const std::string& wan, const std::string& type, const std::string& old)
{
    return joined({{"command devmgr-0 stop_inst " + old, "command devmgr-0 delete_inst " + old},
                   transaction(wan, {"delete_entity " + type + ":" + old}),
                   save,
                   apply({wan})});
}

Lines modemSettings(const std::string& pin, const std::string& puk)
{
    return joined(
        {transaction("wan-2", {"pin " + pin, "puk " + puk, "apn mobile.example.net", "prefmode 2"}),
         transaction("serial-0", {"force3g 1"}), save, apply({"wan-2", "serial-0"})});
}

} // namespace quorvel::simulator::tests
