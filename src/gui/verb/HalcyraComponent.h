#pragma once
#include "common/OrvaneDspListeners.h"
#include "geometry/OrvaneDspPoint3.h"
#include "gui/plane/LumoComponent.h"
#include "gui/plane/PlaneListener.h"
#include "gui/verb/HLShelfFrequencyResponseComponent.h"
#include "gui/verb/HalcyraComponentListener.h"
#include "gui/verb/HalcyraParameters.h"
#include "gui/verb/HalcyraTimeStructureListener.h"
#include "gui/verb/TooltipWindow.h"

#include <array>
#include <cstdint>
#include <memory>

class HalcyraFiltersTabComponent;
class HalcyraTimeStructureTabComponent;

namespace lumo
{
class PlaneComponent;
}

/** The whole content of the window: three pages, for the reverberator's time structure, its filters, and the scene.
    It holds the parameters as last read from their controls, takes the host's settings, and tells its listeners of
    every edit. Message thread. Values that are not finite are ignored by every setter. */
class HalcyraComponent : public lumo::Component,
                         private lumo::HalcyraTimeStructureListener,
                         private lumo::PlaneListener,
                         private lumo::HLShelfFrequencyResponseComponent::Listener
{
public:
    using Listener = lumo::HalcyraComponentListener;

    HalcyraComponent (std::uint32_t numsources, std::uint32_t numspeakers, std::uint32_t numinternals);
    ~HalcyraComponent() override;

    /** Null is ignored, a second add of one listener leaves one. The last by pointer hears first. Not owned. */
    void addListener (Listener* listener);
    void removeListener (Listener* listener);

    /** Tells the listeners of every source, filter, parameter, the speakers and the viewer's options, in this order. */
    void sendAllParameters();
    /** Returns the four filters and the time structure to their defaults, and tells. */
    void resetAll();

    /** The stored value of a parameter, a switch as 0 or 1; 0 for a number that is none. */
    [[nodiscard]] float reverbParameter (HalcyraReverbParameter number) const noexcept;
    /** Sets the control of a parameter by its number; the edit is told once the control has really changed, switches at
        once, the others when JUCE's messages are next run. A number that is none is ignored. */
    void setReverbParameter (HalcyraReverbParameter number, float value);
    /** All stored parameters. */
    [[nodiscard]] const HalcyraTimeStructure& getTimeStructure() const noexcept { return parameters; }

    /** A filter as its curve holds it, 0 direct to 3 cluster. */
    [[nodiscard]] const HLShelfParameters& getFilter (HalcyraFilter filter) const;
    void setFilter (HalcyraFilter filter, const HLShelfParameters& wish, bool notify);

    /** Derives all times from a volume in cubic metres; with notification 1 the slider tells of it. */
    void setRoomSize (float value, int notification);

    [[nodiscard]] lumo::PlaneComponent* getPlane() const noexcept { return plane; }
    /** The origin for an index that is none. */
    [[nodiscard]] qel::Point3 getSourcePosition (int index) const;
    /** Fills one position for each speaker. */
    void getSpeakerPositions (qel::Point3Array& out) const;

    [[nodiscard]] std::uint32_t numSources() const noexcept { return numsources; }
    [[nodiscard]] std::uint32_t numSpeakers() const noexcept { return numspeakers; }
    [[nodiscard]] std::uint32_t numInternals() const noexcept { return numinternals; }

    [[nodiscard]] float getReverbGain() const noexcept { return parameters.gain; }
    [[nodiscard]] float getTr0() const noexcept { return parameters.tr0; }
    [[nodiscard]] float getTrl() const noexcept { return parameters.trl; }
    [[nodiscard]] float getTrm() const noexcept { return parameters.trm; }
    [[nodiscard]] float getTrh() const noexcept { return parameters.trh; }
    [[nodiscard]] float getFl() const noexcept { return parameters.fl; }
    [[nodiscard]] float getFh() const noexcept { return parameters.fh; }
    [[nodiscard]] float getEarlyStart() const noexcept { return parameters.earlyStart; }
    [[nodiscard]] float getEarlyEnd() const noexcept { return parameters.earlyEnd; }
    [[nodiscard]] float getEarlyDistr() const noexcept { return parameters.earlyDistr; }
    [[nodiscard]] float getEarlyShape() const noexcept { return parameters.earlyShape; }
    [[nodiscard]] float getEarlyWidth() const noexcept { return parameters.earlyWidth; }
    [[nodiscard]] float getClusterStart() const noexcept { return parameters.clusterStart; }
    [[nodiscard]] float getClusterEnd() const noexcept { return parameters.clusterEnd; }
    [[nodiscard]] float getClusterDistr() const noexcept { return parameters.clusterDistr; }
    [[nodiscard]] float getReverbStart() const noexcept { return parameters.reverbStart; }
    [[nodiscard]] float getModalDensity() const noexcept { return parameters.modalDensity; }
    [[nodiscard]] bool getAir() const noexcept { return parameters.air != 0; }
    [[nodiscard]] bool getInfinite() const noexcept { return parameters.infinite != 0; }
    [[nodiscard]] float getAirFrequency() const noexcept { return parameters.airFrequency; }
    [[nodiscard]] const HLShelfParameters& getDirectFilter() const { return getFilter (0); }
    [[nodiscard]] const HLShelfParameters& getRoomFilter() const { return getFilter (1); }
    [[nodiscard]] const HLShelfParameters& getEarlyFilter() const { return getFilter (2); }
    [[nodiscard]] const HLShelfParameters& getClusterFilter() const { return getFilter (3); }

    void setReverbGain (float dB) { setReverbParameter (halcyra::parameter::gain, dB); }
    void setTr0 (float seconds) { setReverbParameter (halcyra::parameter::tr0, seconds); }
    void setTrl (float ratio) { setReverbParameter (halcyra::parameter::trl, ratio); }
    void setTrm (float ratio) { setReverbParameter (halcyra::parameter::trm, ratio); }
    void setTrh (float ratio) { setReverbParameter (halcyra::parameter::trh, ratio); }
    void setFl (float hz) { setReverbParameter (halcyra::parameter::fl, hz); }
    void setFh (float hz) { setReverbParameter (halcyra::parameter::fh, hz); }
    void setEarlyStart (float ms) { setReverbParameter (halcyra::parameter::earlyStart, ms); }
    void setEarlyEnd (float ms) { setReverbParameter (halcyra::parameter::earlyEnd, ms); }
    void setEarlyDistr (float value) { setReverbParameter (halcyra::parameter::earlyDistr, value); }
    void setEarlyShape (float value) { setReverbParameter (halcyra::parameter::earlyShape, value); }
    void setEarlyWidth (float degrees) { setReverbParameter (halcyra::parameter::earlyWidth, degrees); }
    void setClusterStart (float ms) { setReverbParameter (halcyra::parameter::clusterStart, ms); }
    void setClusterEnd (float ms) { setReverbParameter (halcyra::parameter::clusterEnd, ms); }
    void setClusterDistr (float value) { setReverbParameter (halcyra::parameter::clusterDistr, value); }
    void setReverbStart (float ms) { setReverbParameter (halcyra::parameter::reverbStart, ms); }
    void setModalDensity (float value) { setReverbParameter (halcyra::parameter::modalDensity, value); }
    void setAir (bool on) { setReverbParameter (halcyra::parameter::air, on ? 1.0f : 0.0f); }
    void setInfinite (bool on) { setReverbParameter (halcyra::parameter::infinite, on ? 1.0f : 0.0f); }
    void setAirFrequency (float hz) { setReverbParameter (halcyra::parameter::airFrequency, hz); }
    void setDirectFilter (const HLShelfParameters& wish, bool notify) { setFilter (0, wish, notify); }
    void setRoomFilter (const HLShelfParameters& wish, bool notify) { setFilter (1, wish, notify); }
    void setEarlyFilter (const HLShelfParameters& wish, bool notify) { setFilter (2, wish, notify); }
    void setClusterFilter (const HLShelfParameters& wish, bool notify) { setFilter (3, wish, notify); }

    void resized() override;
    void paint (juce::Graphics& g) override;
    void paintOverChildren (juce::Graphics& g) override;
    bool keyPressed (const juce::KeyPress& key) override;

private:
    void timeStructureChanged (HalcyraTimeStructureTabComponent* tab, const int& parameter) override;
    void filterChanged (lumo::HLShelfFrequencyResponseComponent* response) override;
    void SourcePositionChanged (std::size_t index, const qel::Point3& position) override;
    void SpeakersPositionsChanged (const qel::Point3Array& positions) override;
    void OptionsChanged (lumo::PlaneBase& source) override;
    void makePages();

    juce::SharedResourcePointer<widgets::TooltipWindow> tooltipWindow;
    const std::uint32_t numsources, numspeakers, numinternals;
    HalcyraTimeStructureTabComponent* timeStructureTab = nullptr;
    HalcyraFiltersTabComponent* filtersTab = nullptr;
    lumo::PlaneComponent* plane = nullptr;
    std::array<lumo::HLShelfFrequencyResponseComponent*, 4> responses{};
    HalcyraTimeStructure parameters;
    qel::Listeners<Listener> listeners;
    std::unique_ptr<juce::TabbedComponent> tabs;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HalcyraComponent)
};
