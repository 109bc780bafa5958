#include "SimulatedGateway.h"

namespace quorvel::simulator::tests
{

using testing::HasSubstr;
using testing::Not;

class ClassicDialectTest : public SimulatedGateway
{
protected:
    ClassicDialectTest() : SimulatedGateway("classic") {}
};

class ModernDialectTest : public SimulatedGateway
{
};

TEST_F(ClassicDialectTest, AnswersWithAnElementPerObjectAndPerValue)
{
    EXPECT_EQ(send({"query sysmgr-0 fwversion", "query devmgr-0 inst_list wan",
                    "query sysmgr-0 getenv PRODUCT_ID", "get dhcps-0 clients"}),
              "<response version=\"1.0.0\">\n"
              "<sysmgr-0><fwversion>1.4.12</fwversion><PRODUCT_ID>QV-1200A</PRODUCT_ID>"
              "</sysmgr-0>\n"
              "<devmgr-0><wan0>wan-0</wan0><wan1>wan-1</wan1></devmgr-0>\n"
              "<dhcps-0><client0.hostname>printer</client0.hostname>"
              "<client0.ip>192.0.2.20</client0.ip>"
              "<client0.mac>02:00:5E:20:00:11</client0.mac>"
              "<client1.hostname></client1.hostname><client1.ip>0.0.0.0</client1.ip>"
              "<client1.mac>00:00:00:00:00:00</client1.mac></dhcps-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ClassicDialectTest, LeavesOutAValueWhoseKeyIsNoElementName)
{
    gateway.setValue("product-0", "Line[0].SIP", "x");
    gateway.setValue("product-0", "numcallentries:", "x");
    gateway.setValue("product-0", "0", "x");
    gateway.setValue("product-0", "status", "up");
    EXPECT_EQ(send({"get product-0 Line[0].SIP", "query product-0 numcallentries:",
                    "get product-0 0", "query product-0 status"}),
              "<response version=\"1.0.0\">\n<product-0><status>up</status></product-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ClassicDialectTest, WritesValuesOfOneKeyAsClientsReadThem)
{
    EXPECT_EQ(send({"query route-0 def_gw_status", "get route-0 default_gw"}),
              "<response version=\"1.0.0\">\n"
              "<route-0><default_gw>wan-0</default_gw></route-0>\n"
              "<route-0><key>def_gw_status</key><value>wan-0:1</value></route-0>\n"
              "<route-0><key>def_gw_status</key><value>wan-1:0</value></route-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ClassicDialectTest, RefusesTheNewerDialect)
{
    EXPECT_EQ(sendXml(xml("1.0.1", {"query devmgr-0 mngr_list"})),
              "<response version=\"1.0.0\">\n<webapp><error>3</error></webapp>\n</response>\n");
}

TEST_F(ClassicDialectTest, HasAGatewayOfTheOlderKind)
{
    const std::string managers = send({"query devmgr-0 mngr_list"});
    for (const char* manager :
         {"devmgr", "dsl", "wan", "conn", "wireless_core", "voice", "warranty"})
        EXPECT_THAT(managers, HasSubstr(std::string(">") + manager + "<"));
    for (const char* manager : {"wireless", "wan_vlan", "usbhost_mngr", "serial", "vpn", "l2tp"})
        EXPECT_THAT(managers, Not(HasSubstr(std::string(">") + manager + "<")));
    EXPECT_THAT(send({"query wan-0 isnewwan"}), HasSubstr("<isnewwan>0</isnewwan>"));
}

TEST_F(ModernDialectTest, AnswersWithAnElementPerValue)
{
    gateway.setValue("voice-0", "Line[0].SIP", "x");
    EXPECT_EQ(send({"get voice-0 Line[0].SIP", "query sysmgr-0 fwversion"}),
              "<response version=\"1.0.1\">\n"
              "<voice-0><key>Line[0].SIP</key><value>x</value></voice-0>\n"
              "<sysmgr-0><key>fwversion</key><value>3.2.0-r7</value></sysmgr-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ModernDialectTest, AnswersTheOlderDialectInItsOwn)
{
    EXPECT_EQ(sendXml(xml("1.0.0", {"query sysmgr-0 fwversion"})),
              "<response version=\"1.0.1\">\n"
              "<sysmgr-0><key>fwversion</key><value>3.2.0-r7</value></sysmgr-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ModernDialectTest, RefusesADialectThatThereIsNot)
{
    EXPECT_EQ(errorIn(sendXml(xml("1.0.2", {"query devmgr-0 mngr_list"}))), 3);
    EXPECT_EQ(errorIn(sendXml("<xmlrequest/>")), 3);
}

TEST_F(ModernDialectTest, HasAGatewayOfTheNewerKind)
{
    const std::string managers = send({"query devmgr-0 mngr_list"});
    for (const char* manager : {"dsl", "wan_vlan", "wireless", "voice", "usbhost_mngr", "serial",
                                "vpn", "l2tp", "warranty", "wan", "conn", "samba_mngr"})
        EXPECT_THAT(managers, HasSubstr(std::string(">") + manager + "<"));
}

TEST_F(ModernDialectTest, AnEmptyRequestIsAnsweredWithNothing)
{
    EXPECT_EQ(sendXml("<xmlrequest version=\"1.0.1\"/>\n"),
              "<response version=\"1.0.1\">\n<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ModernDialectTest, WhatIsNoRequestIsRefused)
{
    const char* const start = "<xmlrequest version=\"1.0.1\">";
    for (const std::string& text :
         {std::string(), std::string("hello"), std::string("<request version=\"1.0.1\"/>"),
          start + std::string("<query inst=\"wan-0\"><key>type</key><value></value></query>"),
          start + std::string("<query><key>type</key><value></value></query></xmlrequest>"),
          start + std::string("<query inst=\"wan-0\"><value></value></query></xmlrequest>"),
          start + std::string("<query inst=\"wan-0\"><key><b/></key></query></xmlrequest>"),
          start + std::string("<query inst=\"wan-0\"><name>type</name></query></xmlrequest>"),
          std::string("<!DOCTYPE x [<!ENTITY e \"e\">]>") + start + "</xmlrequest>",
          start + std::string("</xmlrequest><more/>")})
        EXPECT_EQ(errorIn(sendXml(text)), 2) << text;
}

TEST_F(ModernDialectTest, UnknownVerbsAreRefused)
{
    EXPECT_EQ(errorOf({"ask wan-0 type"}), 4);
    EXPECT_EQ(errorOf({"Get - type"}), 4);
}

} // namespace quorvel::simulator::tests
