#include "max/XmlPage.h"

#include <gmock/gmock.h>

using orvanemax::XmlPage;

TEST (XmlPage, EscapesWhatWouldEndATextOrAValue)
{
    const std::string text = "R&D <b> \"q\" 'a'\t\n\x01\x1f\xc3\xa9";
    const std::string written = "R&amp;D &lt;b&gt; &quot;q&quot; 'a'\t\n\xc3\xa9";
    EXPECT_EQ (orvanemax::escaped (text), written);
    XmlPage page;
    page.open ("a", { { "b", text } });
    page.empty ("c", { { "d", "1" }, { "e", "<" } });
    page.element ("f", "<o>as it stands</o>", { { "g", "&" } });
    page.close ("a");
    EXPECT_EQ (page.text(), "<a b=\"" + written +
                                "\">\n\t<c d=\"1\" e=\"&lt;\" />\n\t<f g=\"&amp;\"><o>as it stands</o></f>\n</a>\n");
}
