#include "support/files/ScratchFolder.h"
#include "text/OrvaneDspXmlReader.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

using qel::XmlElement;
using qel::XmlReader;

std::unique_ptr<XmlElement> read (const std::string& document)
{
    XmlReader reader;
    auto root = reader.read (document);
    EXPECT_TRUE (root != nullptr) << document << ": " << reader.lastError().c_str();
    return root == nullptr ? std::make_unique<XmlElement> ("none") : std::move (root);
}

struct ErrorRow
{
    const char *document, *error;
};

TEST (XmlReader, TellsWhyItGaveUp)
{
    const ErrorRow rows[] = {
        { "", "not enough input" },
        { " \r\n\t", "not enough input" },
        { "<?xml version=\"1.0\"?><!-- alone -->", "not enough input" },
        { "<a", "not enough input" },
        { "<a b='c' ", "not enough input" },
        { "<a><b></b>", "not enough input" },
        { "<a>words", "not enough input" },
        { "<a></", "not enough input" },
        { "<a></a", "not enough input" },
        { "<a b=", "not enough input" },
        { "<?xml version=\"1.0\"", "malformed header" },
        { "<a><?go", "malformed header" },
        { "<!DOCTYPE a [ <!ENTITY b 'c'> ]<a/>", "malformed DTD" },
        { "<a><![CDATA[ x ]]</a>", "unterminated CDATA section" },
        { "<!-- <a/>", "unterminated comment" },
        { "<a><!-></a>", "tag name missing" },
        { "<a><!-- -></a>", "unterminated comment" },
        { "words", "tag name missing" },
        { "< a/>", "tag name missing" },
        { "<>", "tag name missing" },
        { "<", "tag name missing" },
        { "<a b/>", "expected '=' after attribute 'b'" },
        { "<a bc", "expected '=' after attribute 'bc'" },
        { "<a !/>", "illegal character found in a: '!'" },
        { "<a / >", "illegal character found in a: '/'" },
        { "<a b=c/>", "illegal character found in a: 'c'" },
        { "<a></a b>", "illegal character found in a: 'b'" },
        { "<a/> more", "illegal character found in a: 'm'" },
        { "<a/><b/>", "illegal character found in a: '<'" },
        { "<a b=\"c/>", "unmatched quotes" },
        { "<a b='c\"/>", "unmatched quotes" },
        { "<a b='1' c='2' b='3'/>", "repeated attribute 'b'" },
        { "<a><b></a></b>", "expected '</b>'" },
    };
    for (const auto& row : rows) {
        XmlReader reader;
        EXPECT_EQ (reader.read (row.document), nullptr) << row.document;
        EXPECT_EQ (reader.lastError().str(), row.error) << row.document;
        EXPECT_NE (reader.read ("<a/>"), nullptr);
        EXPECT_TRUE (reader.lastError().empty()) << "it starts afresh";
    }
}

TEST (XmlReader, SkipsWhatIsNoElement)
{
    const auto root =
        read ("\xef\xbb\xbf\r\n<?xml version='1.0'?><?style x?><!-- <no> -->"
              "<!DOCTYPE a [ <!ELEMENT a (b)> ]>\n<a > <!-- no --> <?no?>\n<b  c = 'd'\n/><e:f.g-h_1/></a\t> <!---->");
    ASSERT_EQ (root->numberOfChildren(), 2U);
    EXPECT_EQ (root->child (0)->textAttribute ("c").str(), "d");
    EXPECT_EQ (root->child (1)->tagName().str(), "e:f.g-h_1");
}

struct TextRow
{
    const char *written, *expected;
};

TEST (XmlReader, TakesEscapesInTextAndAttributes)
{
    const TextRow rows[] = {
        { "a&lt;b&gt;c&amp;d&quot;e&apos;f", "a<b>c&d\"e'f" },
        { "&amp;lt;", "&lt;" },
        { "&#65;&#x42;&#x6a;&#x6A;", "ABjj" },
        { "&#-61;&#-87;", "\xc3\xa9" },
        { "&#-128;&#127;&#128;", "\x80\x7f\xc2\x80" },
        { "&#233; &#x20ac; &#x1F600;", "\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80" },
        { "caf\xc3\xa9", "caf\xc3\xa9" },
        { " a\r\n b ", " a\r\n b " },
        { "&#10;", "\n" },
    };
    for (const auto& row : rows) {
        const auto root = read ("<a b=\"" + std::string (row.written) + "\">" + row.written + "</a>");
        EXPECT_EQ (root->textAttribute ("b").str(), row.expected) << row.written;
        ASSERT_EQ (root->numberOfChildren(), 1U) << row.written;
        EXPECT_EQ (root->child (0)->text().str(), row.expected) << row.written;
    }
}

TEST (XmlReader, RefusesEscapesThatMeanNothing)
{
    for (const char* escape : { "&", "&;", "&nbsp;", "&lt", "& amp;", "&AMP;", "&#;", "&#x;", "&#12", "&#1a;", "&#xg;",
                                "&#-129;", "&#55296;", "&#xdfff;", "&#1114112;", "&#99999999999;", "&#- 5;", "&#+5;" })
        for (const auto& document :
             { "<a>" + std::string (escape) + "</a>", "<a b='" + std::string (escape) + "'/>" }) {
            XmlReader reader;
            EXPECT_EQ (reader.read (document), nullptr) << document;
            EXPECT_EQ (reader.lastError().str(), "illegal escape sequence") << document;
        }
}

TEST (XmlReader, KeepsCharacterDataAsItStands)
{
    const auto root = read ("<a>x<![CDATA[ <b> &amp; ]] > ]]><![CDATA[]]></a>");
    ASSERT_EQ (root->numberOfChildren(), 3U);
    EXPECT_EQ (root->child (0)->text().str(), "x");
    EXPECT_EQ (root->child (1)->text().str(), " <b> &amp; ]] > ");
    EXPECT_EQ (root->child (2)->text().str(), "");
}

TEST (XmlReader, IsNotHurtByDepthLengthOrNumber)
{
    constexpr int many = 100000;
    std::string deep, wide = "<a>", attributes = "<a";
    for (int i = 0; i < many; ++i)
        deep += "<a>";
    EXPECT_EQ (XmlReader().read (deep), nullptr) << "cut off at its deepest";
    for (int i = 0; i < many; ++i) {
        deep += "</a>";
        wide += "<b/>text";
        attributes += " a" + std::to_string (i) + "='1'";
    }
    EXPECT_EQ (read (wide + "</a>")->numberOfChildren(), 2U * many);
    EXPECT_TRUE (read (attributes + "/>")->hasAttribute ("a99999"));

    qel::MemoryOutput output;
    XmlElement::Layout layout;
    layout.allOnOneLine = true;
    layout.includeHeader = false;
    read (deep)->writeTo (output, layout);
    EXPECT_EQ (output.toString().str(), deep + "\r\n");
}

TEST (XmlReader, EveryTruncationOfADocumentIsRefused)
{
    const std::string whole =
        "<?xml version='1.0'?><!DOCTYPE a><a b='&#233;'><!-- c --><d>e&lt;<![CDATA[f]]></d><g/></a>";
    ASSERT_NE (XmlReader().read (whole), nullptr);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        XmlReader reader;
        EXPECT_EQ (reader.read (whole.substr (0, length)), nullptr) << whole.substr (0, length);
        EXPECT_FALSE (reader.lastError().empty());
    }
}

TEST (XmlReader, ReadsOrdinaryFilesOnly)
{
    const ScratchFolder scratch;
    EXPECT_TRUE (XmlElement::parse (scratch.write ("good.xml", "<a/>"))->hasTagName ("a"));
    EXPECT_EQ (XmlElement::parse (scratch.file ("missing.xml")), nullptr);
    EXPECT_EQ (XmlElement::parse (scratch.file (".")), nullptr);
    EXPECT_EQ (XmlElement::parse (scratch.write ("binary.xml", std::string ("\0\x01\xff<\0>", 6))), nullptr);

    const auto huge = scratch.write ("huge.xml", "<a/>");
    std::filesystem::resize_file (huge.path().str(), std::uintmax_t{ 1 } << 40U);
    XmlReader reader;
    EXPECT_EQ (reader.read (huge), nullptr);
    EXPECT_EQ (reader.lastError().str(), "too much input");
}

}
