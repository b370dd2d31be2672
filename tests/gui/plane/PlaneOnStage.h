#pragma once
#include "PlaneRecorder.h"
#include "support/Stage.h"

#include <gmock/gmock.h>

/** Four sources in a ring, no speakers, on a stage, at about 100 pixels per metre. */
class PlaneOnStage : public testing::Test
{
protected:
    /** The pointer belongs to the desktop and outlives the test. */
    void TearDown() override { stage.release ({}); }

    [[nodiscard]] juce::Point<int> At (const qel::Point3& metres) const
    {
        return lumo::Plane::OnScreen (plane.GetSurface().viewTransform, metres).toInt();
    }
    [[nodiscard]] juce::Point<int> Source (std::size_t i) const { return At (plane.GetSourcePosition (i)); }
    [[nodiscard]] std::string Selected() const
    {
        std::string text;
        for (const bool flag : plane.GetScene().Selection())
            text += flag ? '1' : '0';
        return text;
    }

    lumo::PlaneComponent plane{ 4, 0, 300 };
    PlaneRecorder heard{ plane };
    Stage stage{ plane };
};
