#include "support/HostileDocuments.h"

#include <ostream>

namespace quorvel::test
{

namespace
{

const char* const entry = "<sysmgr-0><key>fwversion</key><value>1.2</value></sysmgr-0>";
const char* const root = "<r version=\"1\"><sysmgr-0><key>fwversion</key><value>1.2</value>"
                         "</sysmgr-0>";

/// A document that declares this in front of its root, and uses an entity "e".
std::vector<Repeated> declaring(const std::vector<Repeated>& declarations)
{
    std::vector<Repeated> parts{{"<!DOCTYPE r ["}};
    parts.insert(parts.end(), declarations.begin(), declarations.end());
    parts.insert(parts.end(), {{"]>"}, {root}, {"<a><b>&e;</b></a></r>"}});
    return parts;
}

std::vector<Repeated> laughs(bool bottomUp)
{
    std::vector<Repeated> declarations;
    for (int i = 0; i < 9; ++i) {
        const int number = bottomUp ? i : 8 - i;
        const QByteArray below = number == 0 ? "lol" : "&e" + QByteArray::number(number) + ";";
        declarations.insert(
            declarations.end(),
            {{"<!ENTITY e" + QByteArray::number(number + 1) + " \""}, {below, 10}, {"\">"}});
    }
    declarations.push_back({"<!ENTITY e \"&e9;\">"});
    return declaring(declarations);
}

std::vector<Repeated> inRoot(const QByteArray& text, int times = 1)
{
    return {{root}, {text, times}, {"</r>"}};
}

std::vector<Repeated> inEntry(const QByteArray& text, int times = 1)
{
    return {{root}, {"<o><p>"}, {text, times}, {"</p></o></r>"}};
}

std::vector<Repeated> inTag(const QByteArray& text, int times)
{
    return {{"<r"}, {text, times}, {">"}, {entry}, {"</r>"}};
}

std::vector<Repeated> nested(int levels)
{
    return {{root}, {"<e>", levels - 1}, {"</e>", levels - 1}, {"</r>"}};
}

std::vector<Repeated> groups(int levels)
{
    return declaring({{"<!ELEMENT r "}, {"(", levels}, {"x"}, {")", levels}, {">"}});
}

std::vector<Repeated> saying(const QByteArray& encoding)
{
    return {{"<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>"}, {root}, {"</r>"}};
}

} // namespace

QByteArray HostileDocument::content() const
{
    QByteArray document;
    for (const Repeated& part : parts) {
        if (!part.text.contains("%1")) {
            document += part.text.repeated(part.times);
            continue;
        }
        for (int i = 0; i < part.times; ++i)
            document += QByteArray(part.text).replace("%1", QByteArray::number(i));
    }
    return document;
}

void PrintTo(const HostileDocument& document, std::ostream* out)
{
    *out << document.name;
}

std::vector<HostileDocument> illFormedDocuments()
{
    return {{"Unclosed", {{root}}},
            {"ClosedInTheWrongOrder", inRoot("<a><b></a></b>")},
            {"TwoRoots", {{root}, {"</r><r/>"}}},
            {"TextBehindTheRoot", {{root}, {"</r>x"}}},
            {"TextBeforeTheRoot", {{"x"}, {root}, {"</r>"}}},
            {"BareAmpersand", inEntry("x & y")},
            {"BracketInAnAttribute", inTag(" version=\"<\"", 1)},
            {"UnquotedAttribute", inTag(" version=1", 1)},
            {"BadComment", inRoot("<!-- a -- b -->")},
            {"BadName", inRoot("<1a/>")},
            {"NoName", inEntry("<a><x:/></a>")},
            {"DeclarationInside", inRoot("<?xml version=\"1.0\"?>")},
            {"OpenCharacterData", inEntry("<![CDATA[x")},
            {"EndOfCharacterDataAlone", inEntry("x]]>")},
            {"EndTagAlone", {{entry}, {"</r>"}}},
            {"NoElement", {{"<?xml version=\"1.0\"?>"}}},
            {"PlainText", {{"Internal server error"}}},
            {"OnlyBlanks", {{" \r\n "}}},
            {"BracketsAlone", {{"<", 4000000}}},
            {"WebPage", {{"<html><head><title>x</title><body><br></html>"}}}};
}

std::vector<HostileDocument> entityDocuments()
{
    return {
        {"Internal", declaring({{"<!ENTITY e \"x\">"}})},
        {"BottomUp", laughs(true)},
        {"TopDown", laughs(false)},
        {"Quadratic",
         declaring(
             {{"<!ENTITY f \""}, {"x", 20000}, {"\"><!ENTITY e \""}, {"&f;", 20000}, {"\">"}})},
        {"LargeLiteral", declaring({{"<!ENTITY e \""}, {"x", 100000}, {"\">"}})},
        {"OfParameters", declaring({{"<!ENTITY % p \"x\">"}})},
        {"OfExternalParameters", declaring({{"<!ENTITY % p SYSTEM \"file:///etc/passwd\"> %p;"}})},
        {"ExternalFile", declaring({{"<!ENTITY e SYSTEM \"file:///etc/passwd\">"}})},
        {"ExternalAddress", declaring({{"<!ENTITY e SYSTEM \"http://127.0.0.1:9/\">"}})},
        {"Public", declaring({{"<!ENTITY e PUBLIC \"p\" \"http://127.0.0.1:9/\">"}})},
        {"Unparsed", declaring({{"<!NOTATION n SYSTEM \"n\">"
                                 "<!ENTITY e SYSTEM \"file:///etc/passwd\" NDATA n>"}})},
        {"OfItself", declaring({{"<!ENTITY e \"&e;\">"}})}};
}

std::vector<HostileDocument> deepDocuments()
{
    return {{"Nested257Deep", nested(257)},
            {"Nested25000Deep", nested(25000)},
            {"NestedAMillionDeep", {{root}, {"<e>", 1000000}}},
            {"Groups257Deep", groups(257)},
            {"Groups25000Deep", groups(25000)},
            {"GroupsAMillionDeep", groups(1000000)},
            {"PrefixesOnEachLevel", {{root}, {"<a xmlns:a%1=''>", 250}, {"</a>", 250}, {"</r>"}}}};
}

std::vector<HostileDocument> crowdedDocuments()
{
    return {{"AMillionObjects", inRoot("<a/>", 1000000)},
            {"AMillionEntries", {{root}, {"<o>"}, {"<a/>", 1000000}, {"</o></r>"}}},
            {"EntriesOfManyNames", {{root}, {"<o>"}, {"<a%1/>", 400000}, {"</o></r>"}}},
            {"ObjectsOfManyNames", inRoot("<a%1><b/></a%1>", 180000)},
            {"AMillionAttributes", inTag(" a=''", 800000)},
            {"ManyPrefixes", inTag(" xmlns:a%1=''", 200000)}};
}

std::vector<HostileDocument> oddDocuments()
{
    return {{"Nested200Deep", nested(200)},
            {"Nested256Deep", nested(256)},
            {"Groups256Deep", groups(256)},
            {"ManyAttributes", inTag(" a%1=''", 10000)},
            {"AttributesOfAll", inEntry("<a b='' c='' d=''/>", 200000)},
            {"LongName", {{root}, {"<"}, {"n", 1000000}, {"/></r>"}}},
            {"LongText", inEntry("v", 3000000)},
            {"LongAttribute", {{"<r a='"}, {"x", 4000000}, {"'>"}, {entry}, {"</r>"}}},
            {"BlanksInATag", inTag(" ", 4000000)},
            {"Comments", inRoot("<!---->", 500000)},
            {"Instructions", inRoot("<?a?>", 800000)},
            {"MarkedData", inEntry("<![CDATA[x]]>y", 290000)},
            {"MixedText", inEntry("x<b/>", 800000)},
            {"References", inEntry("&#65;", 800000)},
            {"UnknownReferences", inEntry("&x;", 1000000)},
            {"Declarations", declaring({{"<!ATTLIST r a%1 CDATA 'x'>", 120000}})},
            {"DeclaredParameters", declaring({{"%p;", 1000000}})},
            {"DeclaredElements", declaring({{"<!ELEMENT a%1 ANY>", 180000}})},
            {"PrefixOfEach", inEntry("<a xmlns:q=''/>", 250000)},
            {"BracketsInValues",
             {{"<!--"},
              {"(", 1000},
              {"-->"},
              {root},
              {"<a><b>!E"},
              {"(", 1000},
              {"</b><c><![CDATA["},
              {"(", 1000},
              {"]]></c></a></r>"}}},
            {"HarmlessSubset", declaring({{"<!ELEMENT r ANY><!ATTLIST r version CDATA #IMPLIED>"
                                           "<!NOTATION n SYSTEM 'n'>"}})},
            {"ExternalSubsetFile",
             {{"<!DOCTYPE r SYSTEM \"file:///etc/passwd\">"}, {root}, {"<a>&root;</a></r>"}}},
            {"ExternalSubsetAddress",
             {{"<!DOCTYPE r SYSTEM \"http://127.0.0.1:9/\">"}, {root}, {"</r>"}}},
            {"SaysLatin1", saying("ISO-8859-1")},
            {"SaysUtf16", saying("UTF-16")},
            {"SaysUnknown", saying("klingon")}};
}

} // namespace quorvel::test
