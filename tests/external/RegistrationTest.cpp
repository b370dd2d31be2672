#include "ControlTest.h"

#include "external/ControlAttributes.h"
#include "external/ViewerAttributes.h"
#include "max/AttributeList.h"
#include "max/ClassRegistration.h"
#include "max/MaxXmlDocumentation.h"

#include <algorithm>

CONTROL_TESTS (Registration);

TEST_P (Registration, MessagesStandInTheirOrder)
{
    auto box = settled();
    std::string names;
    for (const auto& row : bench::methodsOf (*box))
        names += row.message + " ";
    EXPECT_EQ (
        names,
        "generatexml version postattributes getvalueof setvalueof preset recallpreset exportdict dumpdict "
        "dictionary dump reset assist writesnapshot readsnapshot clearsnapshot store recall xsnapshot listener rotate "
        "areas area anchor adjustzoom roomsize bang source direct room early cluster reverb loudspeakers "
        "speakers loudspeaker speaker open wclose dblclick ");
}

TEST_P (Registration, AttributesStandInTheirOrderWithWhatTheirRowsSay)
{
    auto box = settled();
    std::vector<const orvanemax::AttributeRow*> rows;
    for (const auto& attribute : halcyra::controlAttributes())
        rows.push_back (&attribute.row);
    for (const auto& attribute : halcyra::viewerAttributes())
        rows.push_back (&attribute.row);
    const auto visible = bench::visibleAttributes (*box);
    std::vector<std::string> expected;
    for (const auto* row : rows) {
        expected.emplace_back (row->name);
        const auto words = bench::propertyOf (*box, row->name, "label");
        ASSERT_TRUE (words) << row->name;
        EXPECT_EQ (words->at (0).a_w.w_sym, gensym (row->label)) << row->name; // including blanks, as one symbol
        const auto minimum = bench::propertyOf (*box, row->name, "minvalue");
        EXPECT_EQ (minimum && ! minimum->empty(), row->hasBounds) << row->name;
        EXPECT_EQ (box.property (row->name, "save"), "1") << row->name; // a patcher keeps the value
    }
    const auto first = std::find (visible.begin(), visible.end(), expected.front());
    EXPECT_EQ (std::vector<std::string> (first, visible.end()), expected);
}

TEST_P (Registration, AttributesAreListedByNameAndByTheirOrder)
{
    auto box = settled();
    const auto names = [&] (orvanemax::SortMode mode) {
        std::vector<std::string> found;
        for (const auto* name : orvanemax::attributeNames ((*box).object, mode))
            found.emplace_back (name->s_name);
        return found;
    };
    const auto byName = names (orvanemax::SortMode::byName);
    EXPECT_TRUE (std::is_sorted (byName.begin(), byName.end()));

    std::vector<const orvanemax::AttributeRow*> ordered;
    for (const auto& attribute : halcyra::controlAttributes())
        if (attribute.row.order != 0)
            ordered.push_back (&attribute.row);
    std::sort (ordered.begin(), ordered.end(), [] (const auto* a, const auto* b) { return a->order < b->order; });
    const auto byOrder = names (orvanemax::SortMode::byOrder);
    ASSERT_EQ (byOrder.size(), byName.size());
    for (std::size_t i = 0; i < ordered.size(); ++i)
        EXPECT_TRUE (byOrder[i] == ordered[i]->name && ordered[i]->order == static_cast<int> (i) + 1)
            << byOrder[i] << " is number " << ordered[i]->order;
}

TEST_P (Registration, PropertiesAreTheOnesThatUsersKnow)
{
    auto box = settled();
    struct Row
    {
        const char *attribute, *property, *value;
    };
    for (const auto& row : {
             Row{ "numsources", "order", "1" },
             Row{ "windowtitle", "order", "25" },
             Row{ "numsources", "dontreset", "1" },
             Row{ "radius", "dontreset", "1" },
             Row{ "radius", "units", "m" },
             Row{ "windowtopleft", "units", "px" },
             Row{ "direct", "default", "0. 0. 0. 0. 250. 4000." },
             Row{ "gain", "minvalue", "-30." },
             Row{ "tr0", "maxvalue", "30." },
             Row{ "gridmode", "enumvals", "none circular square" },
             Row{ "gridmode", "style", "enum" },
             Row{ "backgroundcolor", "style", "rgba" },
             Row{ "gain", "category", "reverb" },
             Row{ "windowtitle", "category", "\"window options\"" },
             Row{ "format", "category", "viewer" },
             Row{ "backgroundcolor", "default", "0.7 0.7 0.7 1." },
         })
        EXPECT_EQ (box.property (row.attribute, row.property), row.value) << row.attribute << " " << row.property;
    EXPECT_EQ (bench::propertyOf (*box, "aperture", "default").value().size(), 250u);
}

TEST_P (Registration, LabelsAndUnitsAloneAreInTheUsersLanguage)
{
    const char* texts[] = { "late reverberation gain (dB)",
                            "px",
                            "reverb",
                            "rgba",
                            "onoff",
                            "enables/disables viewer display (could be CPU intensive)" };
    for (const auto* text : texts)
        patch.translate (text, std::string ("Übersetzt ") + text);
    ext_main (nullptr);
    auto box = settled();
    EXPECT_EQ (box.property ("gain", "label"), "\"Übersetzt late reverberation gain (dB)\"");
    EXPECT_EQ (box.property ("windowtopleft", "units"), "\"Übersetzt px\"");
    EXPECT_EQ (box.property ("gain", "category"), "reverb");
    EXPECT_EQ (box.property ("backgroundcolor", "style"), "rgba");
    EXPECT_EQ (box.property ("infinite", "style"), "onoff");
    EXPECT_EQ (box.property ("showviewer", "description"),
               "\"enables/disables viewer display (could be CPU intensive)\"");
    box.free();
    for (const auto* text : texts)
        patch.translate (text, text);
    ext_main (nullptr);
}

TEST_P (Registration, TheReferencePageHoldsAllMessagesAndAttributes)
{
    auto box = settled ("@windowtitle \"<&>\"");
    const auto page = MaxXmlDocumentation ((*box).object, "./_c74_ref.xsl", orvanemax::SortMode::byName).page();
    for (const auto& row : bench::methodsOf (*box)) {
        const bool hidden = row.kinds == std::vector<std::string>{ "A_CANT" } && row.message != "dblclick";
        const auto name = row.message == "dictionary" ? std::string ("readdict") : row.message;
        EXPECT_EQ (page.find ("<method name=\"" + name + "\">") != std::string::npos, ! hidden) << name;
    }
    for (const auto& attribute : halcyra::viewerAttributes())
        EXPECT_NE (page.find (std::string ("<attribute name=\"") + attribute.row.name + "\""), std::string::npos)
            << attribute.row.name;
    for (const auto* piece : { "<o>halcyra~.control</o>", "<!--METADATA-->", "<objarglist>",
                               "<seealso name=\"halcyra~\" />", "<enum name=\"circular\" />", "type=\"float\"" })
        EXPECT_NE (page.find (piece), std::string::npos) << piece;
}
