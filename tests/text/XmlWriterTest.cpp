#include "support/files/ScratchFolder.h"
#include "text/OrvaneDspXmlElement.h"
#include "text/OrvaneDspXmlReader.h"

#include <gmock/gmock.h>

namespace
{

using qel::XmlElement;

std::string written (const XmlElement& root, const XmlElement::Layout& layout)
{
    qel::MemoryOutput output;
    root.writeTo (output, layout);
    return output.toString().str();
}

XmlElement::Layout bare (bool allOnOneLine)
{
    XmlElement::Layout layout;
    layout.allOnOneLine = allOnOneLine;
    layout.includeHeader = false;
    return layout;
}

TEST (XmlWriter, LaysOutLinesOrOneLine)
{
    XmlElement root ("root");
    auto* const child = root.addChild (std::make_unique<XmlElement> ("child"));
    child->addChild (std::make_unique<XmlElement> ("empty"));
    child->addChild (std::make_unique<XmlElement> ("leaf"))->setAttribute ("a", 1);
    auto* const mixed = root.addChild (std::make_unique<XmlElement> ("mixed"));
    mixed->addChild (XmlElement::createTextNode ("one "));
    mixed->addChild (std::make_unique<XmlElement> ("b"))->setAttribute ("a", 2);
    mixed->addChild (XmlElement::createTextNode (" two"));

    EXPECT_EQ (written (root, bare (false)), "<root>\r\n"
                                             "  <child>\r\n"
                                             "    <empty>\r\n"
                                             "    </empty>\r\n"
                                             "    <leaf a=\"1\"/>\r\n"
                                             "  </child>\r\n"
                                             "  <mixed>one <b a=\"2\"/> two</mixed>\r\n"
                                             "</root>\r\n");
    EXPECT_EQ (written (root, bare (true)),
               "<root><child><empty></empty><leaf a=\"1\"/></child><mixed>one <b a=\"2\"/> two</mixed></root>\r\n");
}

TEST (XmlWriter, BreaksALineOfAttributesOnceItHasPassedTheLength)
{
    XmlElement root ("list");
    auto* const element = root.addChild (std::make_unique<XmlElement> ("e"));
    for (const char* name : { "a", "b", "c", "d", "e" })
        element->setAttribute (name, "23456"); // 10 characters including the blank before
    auto layout = bare (false);
    layout.lineWrapLength = 19;
    EXPECT_EQ (written (root, layout), "<list>\r\n"
                                       "  <e a=\"23456\" b=\"23456\"\r\n"
                                       "     c=\"23456\" d=\"23456\"\r\n"
                                       "     e=\"23456\"/>\r\n"
                                       "</list>\r\n");
    layout.lineWrapLength = 20;
    EXPECT_NE (written (root, layout).find ("c=\"23456\"\r\n     d="), std::string::npos);
    layout.allOnOneLine = true;
    EXPECT_EQ (written (root, layout).find ('\n'), written (root, layout).size() - 1);
}

TEST (XmlWriter, HeadsADocument)
{
    XmlElement::Layout layout;
    layout.dtd = "<!DOCTYPE a>";
    const XmlElement root ("a");
    EXPECT_THAT (written (root, layout),
                 testing::MatchesRegex ("<\\?xml version=\"1\\.0\" encoding=\"UTF-8\" standalone=\"yes\"\\?>\r\n\r\n"
                                        "<!-- created from libqel v5\\.0\\.0 - [0-9]{2}/[0-9]{2}/[0-9]{4} - "
                                        "[0-9]{2}h[0-9]{2}m[0-9]{2}s -->\r\n\r\n"
                                        "<!DOCTYPE a>\r\n<a>\r\n</a>\r\n"));
    layout.allOnOneLine = true;
    EXPECT_EQ (written (root, layout),
               "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?> <!DOCTYPE a> <a></a>\r\n");
}

TEST (XmlWriter, EscapesWhatCannotStandForItself)
{
    XmlElement root ("a");
    const std::string text ("<&>\"' a\tb\r\n\x7f\xc3\xa9\0.", 16);
    root.setAttribute ("b", text);
    root.addChild (XmlElement::createTextNode (text));
    EXPECT_EQ (written (root, bare (false)), "<a b=\"&lt;&amp;&gt;&quot;' a&#9;b&#13;&#10;&#127;&#-61;&#-87;&#0;.\">"
                                             "&lt;&amp;&gt;&quot;' a&#9;b\r\n&#127;&#-61;&#-87;&#0;.</a>\r\n");
}

TEST (XmlWriter, EveryByteComesBackUnchanged)
{
    std::string bytes;
    for (int i = 0; i < 256; ++i)
        bytes += static_cast<char> (i);
    XmlElement root ("a");
    root.setAttribute ("b", bytes);
    root.addChild (XmlElement::createTextNode ("<words> " + bytes + " "));
    root.addChild (std::make_unique<XmlElement> ("c"));
    root.addChild (XmlElement::createTextNode (bytes));
    for (const bool allOnOneLine : { false, true }) {
        const auto back = qel::XmlReader().read (written (root, bare (allOnOneLine)));
        ASSERT_TRUE (back != nullptr);
        EXPECT_EQ (back->textAttribute ("b").str(), bytes);
        EXPECT_EQ (back->child (0)->text().str(), "<words> " + bytes + " ");
        EXPECT_EQ (back->child (2)->text().str(), bytes);
    }
}

}
