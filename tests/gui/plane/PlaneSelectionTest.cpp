#include "gui/plane/objects/Selection.h"

#include <gmock/gmock.h>

using namespace lumo::Plane;

namespace
{

/** Five sources, the fourth not editable, and three speakers; no component. */
class PlaneSelection : public testing::Test
{
protected:
    PlaneSelection()
    {
        for (int i = 1; i <= 5; ++i)
            scene.sources.push_back (Source (i));
        for (int i = 1; i <= 3; ++i)
            scene.speakers.push_back (Speaker (i));
        scene.sources[3].SetEditable (false);
    }

    /** The selected sources, "L" for the listener, the selected speaker after "S". */
    std::string Selected() const
    {
        std::string text;
        for (std::size_t i = 0; i < scene.sources.size(); ++i)
            if (scene.sources[i].selected)
                text += std::to_string (i);
        if (listener)
            text += "L";
        if (scene.selectedSpeaker != Scene::none)
            text += "S" + std::to_string (scene.selectedSpeaker);
        return text;
    }

    Scene scene;
    bool listener = false;
    Selection selection{ scene, listener };
};

}

TEST_F (PlaneSelection, FollowsThePressOnWhatLiesOnTop)
{
    struct Row
    {
        Selection::Hit hit;
        bool toggle;
        const char* selected;
    };
    for (const auto& [hit, toggle, selected] : {
             Row{ { 1 }, false, "1" },
             Row{ { 2 }, true, "12" },
             Row{ { 1 }, false, "12" }, // a member keeps its group
             Row{ { 1 }, true, "2" },
             Row{ { 0 }, false, "0" },
             Row{ { 0, true }, false, "L" },
             Row{ { 2 }, true, "2" }, // and deselects the listener
             Row{ { 2, true, 1 }, false, "S1" },
             Row{ { Scene::none, true }, true, "L" },
             Row{ { Scene::none, false, 0 }, true, "S0" },
             Row{ { 4 }, true, "4" },
             Row{ {}, true, "" },
         }) {
        selection.Press (hit, toggle);
        EXPECT_EQ (Selected(), selected);
        EXPECT_EQ (selection.Any(), *selected != 0);
    }
}

TEST_F (PlaneSelection, StepsThroughTheSourcesAndStopsAtOneThatIsNotEditable)
{
    selection.TakeSpeaker (2);
    for (const auto* selected : { "0", "1", "2", "", "0" }) {
        EXPECT_TRUE (selection.TakeNextSource());
        EXPECT_EQ (Selected(), selected);
    }
    selection.TakeSource (4);
    EXPECT_TRUE (selection.TakeNextSource());
    EXPECT_EQ (Selected(), "0") << "behind the last comes the first";
    selection.SetSources ({ true, false, true });
    EXPECT_FALSE (selection.TakeNextSource());
    EXPECT_EQ (Selected(), "02");
}

TEST_F (PlaneSelection, TakesAllThatAreEditableBesidesWhatIsSelected)
{
    selection.SetSources ({ false, false, false, true, false, true, true });
    listener = true;
    EXPECT_TRUE (selection.TakeAllSources());
    EXPECT_EQ (Selected(), "01234");
    selection.TakeSpeaker (1);
    EXPECT_TRUE (selection.TakeAllSources());
    EXPECT_EQ (Selected(), "0124");
}

TEST_F (PlaneSelection, LeavesEverythingAloneWhenNoSourceIsEditable)
{
    for (auto& source : scene.sources)
        source.SetEditable (false);
    selection.TakeSpeaker (1);
    EXPECT_FALSE (selection.TakeAllSources());
    EXPECT_FALSE (selection.TakeNextSource());
    EXPECT_EQ (Selected(), "S1");
}
