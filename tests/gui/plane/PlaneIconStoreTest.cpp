#include "PlanePicture.h"
#include "gui/plane/icons/IconStore.h"
#include "support/Stage.h"

#include <gtest/gtest.h>

using lumo::PlaneComponent;
using namespace lumo::Plane;

namespace
{

using SharedStore = juce::SharedResourcePointer<IconStore>;

juce::Image Canvas()
{
    juce::Image image (juce::Image::RGB, 120, 120, false, juce::SoftwareImageType());
    image.clear (image.getBounds(), juce::Colour (0xFFB5B5B5));
    return image;
}

}

TEST (PlaneIconStore, KeepsOneDrawableForAllThatLooksAlike)
{
    const SharedStore store;
    PlaneComponent one (6, 6, 300), other (3, 3, 300);
    static_cast<void> (Picture (one));
    static_cast<void> (Picture (other));
    EXPECT_EQ (store->DrawablesKept(), 3u) << "a source, a speaker and a head";
    one.SetSourceColour (0, 1, 0, 0, 1, false);
    other.SetSourceColour (2, 1, 0, 0, 1, false);
    other.SetSourceEditable (1, false, false);
    for (int i = 0; i < 2; ++i) {
        static_cast<void> (Picture (one));
        static_cast<void> (Picture (other));
    }
    EXPECT_EQ (store->DrawablesKept(), 5u) << "and a red source and a faded one";
}

/** At any subpixel position and scale: a mean difference of at most four levels at a speaker's corners; half as many
    phases would give five. */
TEST (PlaneIconStore, BitmapsLookAsTheirVectorsDo)
{
    IconStore store;
    const Icon icons[] = { { Icon::Kind::source, juce::Colours::red },
                           { Icon::Kind::fixedSource, juce::Colours::red },
                           { Icon::Kind::speaker, juce::Colours::black },
                           { Icon::Kind::head, {}, HeadKind::topWithHeadphones } };
    for (const auto& icon : icons)
        for (const float scale : { 1.0f, 1.25f, 2.0f })
            for (const float angle : { 0.0f, 0.7f })
                for (const float off : { 0.0f, 0.19f, 0.5f, 0.94f }) {
                    const PixelGrid pixels{ scale, {} };
                    const auto square = juce::Rectangle<float> (30, 30).withPosition (10 + off, 12 - off);
                    auto bitmap = Canvas(), vectors = Canvas();
                    juce::Graphics onBitmap (bitmap), onVectors (vectors);
                    for (auto* g : { &onBitmap, &onVectors })
                        g->addTransform (pixels.Transform());
                    store.Draw (onBitmap, icon, square, pixels, angle);
                    onVectors.addTransform (
                        juce::AffineTransform::rotation (angle, square.getCentreX(), square.getCentreY()));
                    store.DrawableOf (icon).drawWithin (onVectors, square, juce::RectanglePlacement::centred, 1.0f);
                    double sum = 0;
                    for (int y = 0; y < 120; ++y)
                        for (int x = 0; x < 120; ++x)
                            sum += std::abs (bitmap.getPixelAt (x, y).getRed() - vectors.getPixelAt (x, y).getRed());
                    const double pixelsOfIcon = 900.0 * static_cast<double> (scale * scale);
                    EXPECT_LT (sum / pixelsOfIcon, 4)
                        << icon.Key() << " at " << off << ", scale " << scale << ", turned by " << angle;
                }
}

TEST (PlaneIconStore, IsBoundedWhateverIsDrawn)
{
    IconStore store;
    auto image = Canvas();
    juce::Graphics g (image);
    for (juce::uint32 i = 0; i < 2000; ++i) {
        const auto side = static_cast<float> (10 + i % 140);
        store.Draw (g, { Icon::Kind::source, juce::Colour (0xFF000000 + 7919 * i) },
                    { 0.1f * static_cast<float> (i % 10), 0, side, side }, {});
        ASSERT_LE (store.BytesKept(), IconStore::mostBytes);
        ASSERT_LE (store.DrawablesKept(), IconStore::mostDrawables);
    }
    EXPECT_GT (store.BytesKept(), 0u);
}

TEST (PlaneIconStore, IsDroppedWithTheLastWindow)
{
    PlaneComponent plane (2, 2, 300);
    EXPECT_FALSE (plane.GetSurface().icons.has_value()) << "not before it is seen";
    {
        Stage stage (plane);
        static_cast<void> (stage.picture());
        const SharedStore store;
        EXPECT_EQ (store.getReferenceCount(), 2);
        EXPECT_GT (store->BytesKept(), 0u);
    }
    EXPECT_FALSE (plane.GetSurface().icons.has_value());
    const SharedStore fresh;
    EXPECT_EQ (fresh->DrawablesKept(), 0u);
}
