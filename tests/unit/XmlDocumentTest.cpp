#include "document/XmlDocument.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ScratchFolder.h"

namespace plandesk::test {

namespace {

using Node = XmlDocument::Node;

/// The node as "name" of an empty element, "name=text" of a text and of an element that holds one text alone,
/// "name(child child)" of any other.
std::string shape(const XmlDocument& document, Node node) {
    const std::string name(document.name(node));
    const Node first = document.firstChild(node);
    if (first == XmlDocument::none) {
        const std::string text(document.text(node));
        return name == "#text" || !text.empty() ? name + "=" + text : name;
    }
    if (document.name(first) == "#text" && document.nextSibling(first) == XmlDocument::none)
        return name + "=" + std::string(document.text(first));
    std::string children;
    for (Node child = first; child != XmlDocument::none; child = document.nextSibling(child))
        children += (children.empty() ? "" : " ") + shape(document, child);
    return name + "(" + children + ")";
}

/// Shape of the document that the bytes are; "none" for one without a root.
std::string loaded(std::string_view bytes) {
    const ScratchFolder folder;
    XmlDocument document;
    const bool success = document.load(folder.write("proposal.xml", bytes));
    EXPECT_EQ(success, document.root() != XmlDocument::none);
    return success ? shape(document, document.root()) : "none";
}

std::string utf16(std::u16string_view text, bool littleEndian) {
    std::string bytes;
    for (const char16_t unit : text) {
        const auto high = static_cast<char>(unit >> 8);
        const auto low = static_cast<char>(unit & 0xFF);
        bytes += littleEndian ? low : high;
        bytes += littleEndian ? high : low;
    }
    return bytes;
}

std::string repeated(std::string_view text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

}  // namespace

TEST(XmlDocument, elementsAndTextsStandInDocumentOrder) {
    EXPECT_EQ(loaded("<r><a>one</a><b><c>two</c><d/></b></r>"), "r(a=one b(c=two d))");
    EXPECT_EQ(loaded("<r/>"), "r");
    EXPECT_EQ(loaded("<r></r>"), "r");
    EXPECT_EQ(loaded("<r>text</r>"), "r=text");
}

TEST(XmlDocument, theDeclarationThatTheWriterMakesIsTaken) {
    EXPECT_EQ(loaded("<?xml version = '1.0' ?><INWARDINFO DEPARTMENT='BP'><A>x</A></INWARDINFO>\r\n"),
              "INWARDINFO(A=x)");
}

TEST(XmlDocument, theTextOfAnElementIsAllTextInsideIt) {
    const ScratchFolder folder;
    XmlDocument document;
    ASSERT_TRUE(document.load(folder.write("a", "<r><a>1<b>2<c>3</c></b>4</a><d>5</d></r>")));
    const Node a = document.firstChild(document.root());
    EXPECT_EQ(document.text(document.root()), "12345");
    EXPECT_EQ(document.text(a), "1234");
    EXPECT_EQ(document.text(document.nextSibling(a)), "5");
    EXPECT_EQ(shape(document, a), "a(#text=1 b(#text=2 c=3) #text=4)");
}

TEST(XmlDocument, whitespaceBetweenElementsIsNoNode) {
    EXPECT_EQ(loaded("<r>\n  <a>1</a>\t<b/>\r\n </r>\n"), "r(a=1 b)");
}

TEST(XmlDocument, whitespaceAloneInAnElementIsItsText) {
    EXPECT_EQ(loaded("<r><a>  </a><b>\n</b></r>"), "r(a=   b=\n)");
}

TEST(XmlDocument, textBesideElementsIsANode) {
    EXPECT_EQ(loaded("<r>x<a/> y <b/></r>"), "r(#text=x a #text= y  b)");
}

TEST(XmlDocument, commentsAndInstructionsAreNoNodesAndPartNoText) {
    EXPECT_EQ(loaded("<!-- c --><?p i?><r><!-- c --><a>1<!-- - -->2<?p i?>3</a><?p?></r><!-- end -->"), "r(a=123)");
}

TEST(XmlDocument, characterDataSectionsAreText) {
    EXPECT_EQ(loaded("<r><a>1<![CDATA[<&>]]>2</a></r>"), "r(a=1<&>2)");
}

TEST(XmlDocument, entitiesAreDecoded) {
    EXPECT_EQ(loaded("<r>&amp;&lt;&gt;&quot;&apos;&#65;&#x905;</r>"), "r=&<>\"'A\xE0\xA4\x85");
}

TEST(XmlDocument, lineEndsAreReadAsOneCharacter) {
    EXPECT_EQ(loaded("<r>a\r\nb\rc\nd</r>"), "r=a\nb\nc\nd");
}

TEST(XmlDocument, attributesAndNamespacesAreNoNodes) {
    EXPECT_EQ(loaded("<r x='1' xmlns='urn:a' xmlns:p='urn:b'><p:a y='2'>1</p:a></r>"), "r(p:a=1)");
}

TEST(XmlDocument, anUndeclaredPrefixIsPartOfTheName) {
    EXPECT_EQ(loaded("<r><p:a>1</p:a></r>"), "r(p:a=1)");
}

TEST(XmlDocument, anIllFormedFileHasNoRoot) {
    for (const std::string_view bytes : {"",
                                         " ",
                                         "plain text",
                                         "<r>",
                                         "<r></s>",
                                         "<r><a></r></a>",
                                         "<r/><r/>",
                                         "<r>&unknown;</r>",
                                         "<r>a & b</r>",
                                         "<r>a < b</r>",
                                         "<r a=1/>",
                                         "<r a='1' a='2'/>",
                                         "<r/>text",
                                         "<r>]]></r>",
                                         "<r>\x01</r>",
                                         "<r>&#0;</r>",
                                         "<?xml version='1.0'?><?xml version='1.0'?><r/>",
                                         " <?xml version='1.0'?><r/>",
                                         "<1/>",
                                         "<r><!-- -- --></r>"})
        EXPECT_EQ(loaded(bytes), "none") << bytes;
}

TEST(XmlDocument, aNulHasNoRoot) {
    using namespace std::string_view_literals;
    EXPECT_EQ(loaded("<r>a\0b</r>"sv), "none");
    EXPECT_EQ(loaded("\0<r/>"sv), "none");
    EXPECT_EQ(loaded("<r/>\0"sv), "none");
}

TEST(XmlDocument, bytesThatAreNoUtf8HaveNoRoot) {
    EXPECT_EQ(loaded("<r>caf\xE9</r>"), "none");
    EXPECT_EQ(loaded("<r>\xC0\xAF</r>"), "none");
    EXPECT_EQ(loaded("<r>\xED\xA0\x80</r>"), "none");
}

TEST(XmlDocument, aDeclaredEncodingIsDecoded) {
    EXPECT_EQ(loaded("<?xml version='1.0' encoding='ISO-8859-1'?><r>caf\xE9</r>"), "r=caf\xC3\xA9");
    EXPECT_EQ(loaded("<?xml version='1.0' encoding='windows-1252'?><r>\x80</r>"), "r=\xE2\x82\xAC");
    EXPECT_EQ(loaded("<?xml version='1.0' encoding='no-such-set'?><r/>"), "none");
}

TEST(XmlDocument, aByteOrderMarkIsPassedOver) {
    EXPECT_EQ(loaded("\xEF\xBB\xBF<r>a</r>"), "r=a");
}

TEST(XmlDocument, utf16IsDecodedInBothOrders) {
    const std::u16string text = u"\uFEFF<?xml version='1.0'?><r><a>\u0905\U0001F600</a></r>";
    EXPECT_EQ(loaded(utf16(text, true)), "r(a=\xE0\xA4\x85\xF0\x9F\x98\x80)");
    EXPECT_EQ(loaded(utf16(text, false)), "r(a=\xE0\xA4\x85\xF0\x9F\x98\x80)");
    EXPECT_EQ(loaded(utf16(text, true).substr(0, 41)), "none");
}

TEST(XmlDocument, devanagariOutsideAsciiIsKept) {
    EXPECT_EQ(loaded("<r>\xE0\xA4\x97\xE0\xA4\xBE\xE0\xA4\xB5</r>"), "r=\xE0\xA4\x97\xE0\xA4\xBE\xE0\xA4\xB5");
}

TEST(XmlDocument, aDeclaredEntityStandsForNothing) {
    EXPECT_EQ(loaded("<!DOCTYPE r [<!ENTITY x 'text'>]><r>a&x;b</r>"), "r=ab");
    EXPECT_EQ(loaded("<!DOCTYPE r [<!ENTITY x '<a>1</a>'>]><r>&x;</r>"), "r");
}

TEST(XmlDocument, aBillionLaughsStandForNothing) {
    std::string bytes = "<!DOCTYPE r [<!ENTITY a0 'lol'>";
    for (int i = 1; i < 10; ++i) {
        const std::string inner = "&a" + std::to_string(i - 1) + ";";
        bytes += "<!ENTITY a" + std::to_string(i) + " '" + repeated(inner, 10) + "'>";
    }
    EXPECT_EQ(loaded(bytes + "]><r><a b='&a9;'>&a9;</a></r>"), "r(a)");
}

TEST(XmlDocument, anExternalEntityIsNotRead) {
    const ScratchFolder folder;
    const std::string secret = folder.write("secret", "<s>secret</s>");
    const std::string declared = "<!DOCTYPE r SYSTEM '" + secret + "' [<!ENTITY x SYSTEM 'file://" + secret +
                                 "'><!ENTITY % p SYSTEM 'file://" + secret + "'>%p;]>";
    EXPECT_EQ(loaded(declared + "<r>a&x;b</r>"), "r=ab");
}

TEST(XmlDocument, aDefaultedAttributeCostsNothing) {
    EXPECT_EQ(loaded("<!DOCTYPE r [<!ATTLIST a b CDATA 'x'>]><r><a/></r>"), "r(a)");
}

TEST(XmlDocument, elementsAreTakenDownToTheDeepestNesting) {
    const int deepest = static_cast<int>(XmlDocument::deepestNesting);
    EXPECT_NE(loaded(repeated("<a>", deepest) + repeated("</a>", deepest)), "none");
    EXPECT_EQ(loaded(repeated("<a>", deepest + 1) + repeated("</a>", deepest + 1)), "none");
    EXPECT_EQ(loaded(repeated("<a>", 300000)), "none");
}

TEST(XmlDocument, aTagOfEndlessAttributesIsRefused) {
    std::string tag = "<r";
    for (int i = 0; i < 100000; ++i)
        tag += " a" + std::to_string(i) + "=''";
    EXPECT_EQ(loaded(tag + "/>"), "none");
}

TEST(XmlDocument, aDocumentTypeOfEndlessDeclarationsIsRefused) {
    std::string type = "<!DOCTYPE r [<!ATTLIST a b (x";
    for (int i = 0; i < 100000; ++i)
        type += "|x" + std::to_string(i);
    EXPECT_EQ(loaded(type + ") 'x'>]><r/>"), "none");
}

TEST(XmlDocument, aLongTextCommentOrInstructionIsTaken) {
    const std::string text(3 * XmlDocument::longestTag, 'x');
    EXPECT_EQ(loaded("<r>" + text + "</r>"), "r=" + text);
    EXPECT_EQ(loaded("<r><![CDATA[" + text + "]]></r>"), "r=" + text);
    EXPECT_EQ(loaded("<r><!--" + text + "-->a</r>"), "r=a");
    EXPECT_EQ(loaded("<r><?p " + text + "?>a</r>"), "r=a");
    EXPECT_EQ(loaded("<!--" + text + "--><?p " + text + "?><r>a</r><!--" + text + "-->"), "r=a");
}

TEST(XmlDocument, whatIsTakenAndRefusedIsTheSameInAnEncodingOfTwoBytes) {
    const std::u16string text(3 * XmlDocument::longestTag, u'x');
    EXPECT_EQ(loaded(utf16(u"\uFEFF<r><!--" + text + u"-->a</r>", true)), "r=a");
    EXPECT_EQ(loaded(utf16(u"\uFEFF<r><?p " + text + u"?>a</r>", false)), "r=a");
    EXPECT_EQ(loaded(utf16(u"\uFEFF<r><" + text + u"/></r>", true)), "none");
}

TEST(XmlDocument, aLongTagIsRefusedBehindWhateverWasWaitedFor) {
    const std::string text(3 * XmlDocument::longestTag, 'x');
    const std::string tag = "<" + text + "/>";
    EXPECT_EQ(loaded("<r><!--" + text + "-->" + tag + "</r>"), "none");
    EXPECT_EQ(loaded("<r><![CDATA[" + text + "]]>" + tag + "</r>"), "none");
    EXPECT_EQ(loaded("<r>" + text + tag + "</r>"), "none");
    EXPECT_EQ(loaded("<!--" + text + "-->" + tag), "none");
}

TEST(XmlDocument, aSecondLoadForgetsTheFirst) {
    const ScratchFolder folder;
    XmlDocument document;
    ASSERT_TRUE(document.load(folder.write("a", "<r><a>1</a></r>")));
    EXPECT_FALSE(document.load(folder.write("b", "<r>")));
    EXPECT_EQ(document.root(), XmlDocument::none);
    ASSERT_TRUE(document.load(folder.write("c", "<s><b>2</b></s>")));
    EXPECT_EQ(shape(document, document.root()), "s(b=2)");
}

}  // namespace plandesk::test
