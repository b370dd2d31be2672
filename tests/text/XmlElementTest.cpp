#include "text/OrvaneDspXmlElement.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

using qel::XmlElement;

TEST (XmlElement, KeepsChildrenInOrder)
{
    XmlElement list ("list");
    EXPECT_EQ (list.child (0), nullptr);
    auto* const first = list.addChild (std::make_unique<XmlElement> ("first"));
    auto* const text = list.addChild (XmlElement::createTextNode ("words"));
    EXPECT_EQ (list.addChild (nullptr), nullptr);

    EXPECT_EQ (list.numberOfChildren(), 2U);
    EXPECT_EQ (list.child (0), first);
    EXPECT_EQ (list.child (1), text);
    EXPECT_EQ (list.child (2), nullptr);
    EXPECT_TRUE (first->hasTagName ("first") && ! first->hasTagName ("First") && ! first->isTextNode());
    EXPECT_TRUE (text->isTextNode());
    EXPECT_EQ (text->text().str(), "words");
    EXPECT_TRUE (first->text().empty());
}

TEST (XmlElement, OverwritesAnAttributeInItsPlace)
{
    XmlElement element ("e");
    element.setAttribute ("a", 1);
    element.setAttribute ("b", "two");
    element.setAttribute ("a", "new");
    qel::MemoryOutput output;
    XmlElement::Layout layout;
    layout.includeHeader = false;
    element.writeTo (output, layout);
    EXPECT_EQ (output.toString().str(), "<e a=\"new\" b=\"two\"/>\r\n");
}

struct NumberRow
{
    const char* text;
    int asInt;
    double asDouble;
};

TEST (XmlElement, ReadsTheNumberThatATextBeginsWith)
{
    const NumberRow rows[] = {
        { "12", 12, 12 },
        { "-0.5e1", 0, -5 },
        { " +3.25 m", 3, 3.25 },
        { "", 0, 0 },
        { "north", 0, 0 },
        { "99999999999", 2147483647, 99999999999.0 },
        { "-99999999999", -2147483647 - 1, -99999999999.0 },
        { "1e-999", 1, 0 },
        { "1e999", 1, HUGE_VAL },
        { "-1e999", -1, -HUGE_VAL },
    };
    for (const auto& row : rows) {
        XmlElement element ("e");
        element.setAttribute ("n", row.text);
        EXPECT_EQ (element.intAttribute ("n", 7), row.asInt) << row.text;
        EXPECT_EQ (element.doubleAttribute ("n", 7), row.asDouble) << row.text;
    }
}

TEST (XmlElement, GivesTheFallbackOnlyForWhatIsMissing)
{
    XmlElement element ("e");
    element.setAttribute ("empty", "");
    EXPECT_TRUE (element.hasAttribute ("empty") && ! element.hasAttribute ("Empty"));
    EXPECT_EQ (element.textAttribute ("empty", "fallback").str(), "");
    EXPECT_EQ (element.textAttribute ("none", "fallback").str(), "fallback");
    EXPECT_EQ (element.intAttribute ("none", 7), 7);
    EXPECT_EQ (element.doubleAttribute ("none", 0.5), 0.5);
}

}
