#include "gui/plane/LumoComponent.h"
#include "support/ImageDifference.h"
#include "support/Stage.h"

#include <gtest/gtest.h>

namespace
{

/** Paints a plain background, timed. */
struct Timed : lumo::Component
{
    Timed() : lumo::Component ("timed")
    {
        setSize (400, 200);
        setOpaque (true);
    }
    void paint (juce::Graphics& g) override
    {
        BeginPaintTiming();
        g.fillAll (juce::Colours::black);
        EndPaintTiming();
    }
};

TEST (LumoComponent, ChoosesItsLookByTextAndIgnoresOtherTexts)
{
    lumo::Component component ("name");
    const auto isV2 = [&] { return dynamic_cast<Ambrel4LookAndFeelV2*> (&component.getLookAndFeel()) != nullptr; };
    const auto isV3 = [&] { return dynamic_cast<Ambrel4LookAndFeelV3*> (&component.getLookAndFeel()) != nullptr; };
    EXPECT_TRUE (isV2());
    for (const auto* text : { "v3", "V2", "V3", "v2" }) {
        component.SetLookAndFeelVersion (text);
        EXPECT_EQ (isV2(), juce::String (text).endsWith ("2")) << text;
        EXPECT_NE (isV2(), isV3()) << text;
        component.SetLookAndFeelVersion ("v4");
        EXPECT_EQ (isV2(), juce::String (text).endsWith ("2")) << "after an unknown text";
    }
}

TEST (LumoComponent, MakesFontsByTheWordsOfTheirStyle)
{
    const auto font = lumo::Component::MakeFont ("Arial", "bold italic", 13);
    EXPECT_TRUE (font.isBold() && font.isItalic() && ! font.isUnderlined());
    EXPECT_EQ (font.getHeight(), 13);
    EXPECT_EQ (font.getTypefaceName(), "Arial");
    EXPECT_TRUE (lumo::Component::MakeFont ("Arial", "underlined", 9).isUnderlined());
    EXPECT_FALSE (lumo::Component::MakeFont ("Arial", "bolditalic", 9).isBold());
    EXPECT_EQ (lumo::Component::MakeFont (10).getTypefaceName(), "Lucida Grande");
}

TEST (LumoComponent, TimesItsPaintsOnlyWhileTheStatisticsAreOn)
{
    Timed component;
    Stage stage (component);
    (void)stage.picture();
    EXPECT_EQ (component.GetRenderTime(), 0);
    EXPECT_EQ (component.GetFrameRate(), 0);
    component.SetShowFps (true);
    for (int i = 0; i < 3; ++i) {
        component.repaint();
        (void)stage.picture();
    }
    EXPECT_GT (component.GetRenderTime(), 0);
    EXPECT_GT (component.GetFrameRate(), 0);
}

/** Times its whole frame, which its child covers. */
struct Covered : lumo::Component
{
    Covered() : lumo::Component ("covered")
    {
        setSize (400, 200);
        setOpaque (true);
        cover.setSize (400, 200);
        addAndMakeVisible (cover);
    }
    void paint (juce::Graphics&) override { BeginPaintTiming(); }
    void paintOverChildren (juce::Graphics& g) override
    {
        EndPaintTiming();
        lumo::Component::paintOverChildren (g);
    }
    Timed cover;
};

TEST (LumoComponent, TimesAFrameFromItsStartThoughChildrenHideAllOfIt)
{
    Covered component;
    Stage stage (component);
    component.SetShowFps (true);
    (void)stage.picture();
    const auto start = juce::Time::getMillisecondCounterHiRes();
    while (juce::Time::getMillisecondCounterHiRes() < start + 300) {
    }
    component.cover.repaint();
    (void)stage.picture();
    EXPECT_GT (component.GetRenderTime(), 0);
    EXPECT_LT (component.GetRenderTime(), 20) << "a tenth of 300 ms would be 30: the time between two frames";
}

TEST (LumoComponent, ShowsTheOverlayInTheTopRightQuarterOfASmallWindow)
{
    Timed component;
    Stage stage (component);
    EXPECT_EQ (stage.picture().getPixelAt (301, 1), juce::Colours::black);
    component.SetShowFps (true);
    const auto shown = stage.picture();
    EXPECT_NEAR (shown.getPixelAt (301, 1).getRed(), 128, 2);
    EXPECT_NEAR (shown.getPixelAt (398, 48).getRed(), 128, 2);
    EXPECT_EQ (shown.getPixelAt (298, 1), juce::Colours::black);
    EXPECT_EQ (shown.getPixelAt (398, 52), juce::Colours::black);
}

TEST (LumoComponent, AFrameElsewhereRefreshesTheOverlayInOneThatIsNotCounted)
{
    Covered component;
    Stage stage (component);
    component.SetShowFps (true);
    (void)stage.picture();
    const auto before = stage.picture();
    component.cover.repaint (10, 150, 20, 20);
    (void)stage.picture();
    const double rate = component.GetFrameRate();
    EXPECT_GT (rate, 0);
    const auto after = stage.picture();
    EXPECT_EQ (component.GetFrameRate(), rate);
    EXPECT_TRUE (differIn ({ 300, 0, 100, 50 }, before, after)) << "it shows the new rate";
}

TEST (LumoComponent, AnEmbeddedOneShowsNoOverlay)
{
    juce::Component parent;
    parent.setSize (400, 200);
    Timed component;
    parent.addAndMakeVisible (component);
    component.SetShowFps (true);
    Stage stage (parent);
    EXPECT_EQ (stage.picture().getPixelAt (301, 1), juce::Colours::black);
}

TEST (LumoComponent, NamesItsRenderers)
{
    Timed component;
    EXPECT_EQ (component.GetRendererName(), juce::String());
    EXPECT_EQ (component.GetRendererNames(), juce::StringArray ("OpenGL Renderer"));
    Stage stage (component);
    EXPECT_EQ (component.GetRendererNames().size(), 2);
    EXPECT_EQ (component.GetRendererName(), component.GetRendererNames()[0]);
    component.SetOpenGLEnabled (true); // there is no native window to render to
    EXPECT_FALSE (component.IsOpenGLEnabled());
    component.SetOpenGLEnabled (false);
    EXPECT_FALSE (component.IsOpenGLEnabled());
}

}
