#pragma once
#include "common/OrvaneDspListeners.h"
#include "geometry/OrvaneDspPoint3.h"
#include "gui/plane/LumoComponent.h"
#include "gui/plane/PlaneListener.h"
#include "gui/verb/EditHistory.h"
#include "gui/verb/HalcyraComponentListener.h"
#include "gui/verb/SelfWakingModel.h"
#include "gui/verb/UndoablePlane.h"

#include <cstdint>
#include <memory>

/** The reverberator's model, its scene, and the window's content: three pages for the time structure, the filters and
    the scene, created when the component first gets a window or is drawn. Takes settings from the host, notifies
    listeners of every change, and undoes the user's edits. All setters ignore non-finite values. Message thread. */
class HalcyraComponent : public lumo::Component, private halcyra::ReverbModel::Listener, private lumo::PlaneListener
{
public:
    using Listener = lumo::HalcyraComponentListener;

    HalcyraComponent (std::uint32_t numsources, std::uint32_t numspeakers, std::uint32_t numinternals);
    ~HalcyraComponent() override;

    /** Null and duplicates are ignored. Listeners are called from the highest pointer down. Not owned. */
    void addListener (Listener* listener);
    void removeListener (Listener* listener);

    /** Notifies listeners of every source, filter, parameter, the speakers and the viewer's options, in this order. */
    void sendAllParameters();
    /** Resets the four filters and the time structure to their defaults, and notifies. */
    void resetAll();

    [[nodiscard]] const halcyra::ReverbModel& getModel() const noexcept { return model; }
    /** Sets how a turn ends: waker is called at the turn's first change and must queue a call of endTurn() behind
        everything already queued. By default a JUCE message does. */
    void setTurnWaker (std::function<void()> waker) { model.wakeTurnEnd = std::move (waker); }
    /** Notifies the number parameters changed in this turn. */
    void endTurn() { model.endTurn(); }

    /** A parameter's value, 0 or 1 for a switch; 0 for an unknown number. */
    [[nodiscard]] float reverbParameter (HalcyraReverbParameter number) const noexcept;
    /** Sets a parameter by number. Switches notify at once, numbers when the turn ends. */
    void setReverbParameter (HalcyraReverbParameter number, float value);
    [[nodiscard]] const HalcyraTimeStructure& getTimeStructure() const noexcept { return model.parameters(); }

    /** 0 direct to 3 cluster. */
    [[nodiscard]] const HLShelfParameters& getFilter (HalcyraFilter filter) const { return model.filter (filter); }
    void setFilter (HalcyraFilter filter, const HLShelfParameters& wish, bool notify);

    /** Derives all times from a volume in cubic metres; notifies only if notification is 1. */
    void setRoomSize (float value, int notification);

    /** Undoes or redoes the user's newest gesture; ignored while a mouse button is down. */
    void undo();
    void redo();

    [[nodiscard]] lumo::PlaneComponent* getPlane() const noexcept { return plane; }
    /** The origin for an invalid index. */
    [[nodiscard]] qel::Point3 getSourcePosition (int index) const;
    /** Fills in one position per speaker. */
    void getSpeakerPositions (qel::Point3Array& out) const;

    [[nodiscard]] std::uint32_t numSources() const noexcept { return numsources; }
    [[nodiscard]] std::uint32_t numSpeakers() const noexcept { return numspeakers; }
    [[nodiscard]] std::uint32_t numInternals() const noexcept { return numinternals; }

    // By name: one getter and one setter per parameter and filter.
    [[nodiscard]] float getReverbGain() const noexcept { return getTimeStructure().gain; }
    [[nodiscard]] float getTr0() const noexcept { return getTimeStructure().tr0; }
    [[nodiscard]] float getTrl() const noexcept { return getTimeStructure().trl; }
    [[nodiscard]] float getTrm() const noexcept { return getTimeStructure().trm; }
    [[nodiscard]] float getTrh() const noexcept { return getTimeStructure().trh; }
    [[nodiscard]] float getFl() const noexcept { return getTimeStructure().fl; }
    [[nodiscard]] float getFh() const noexcept { return getTimeStructure().fh; }
    [[nodiscard]] float getEarlyStart() const noexcept { return getTimeStructure().earlyStart; }
    [[nodiscard]] float getEarlyEnd() const noexcept { return getTimeStructure().earlyEnd; }
    [[nodiscard]] float getEarlyDistr() const noexcept { return getTimeStructure().earlyDistr; }
    [[nodiscard]] float getEarlyShape() const noexcept { return getTimeStructure().earlyShape; }
    [[nodiscard]] float getEarlyWidth() const noexcept { return getTimeStructure().earlyWidth; }
    [[nodiscard]] float getClusterStart() const noexcept { return getTimeStructure().clusterStart; }
    [[nodiscard]] float getClusterEnd() const noexcept { return getTimeStructure().clusterEnd; }
    [[nodiscard]] float getClusterDistr() const noexcept { return getTimeStructure().clusterDistr; }
    [[nodiscard]] float getReverbStart() const noexcept { return getTimeStructure().reverbStart; }
    [[nodiscard]] float getModalDensity() const noexcept { return getTimeStructure().modalDensity; }
    [[nodiscard]] bool getAir() const noexcept { return getTimeStructure().air != 0; }
    [[nodiscard]] bool getInfinite() const noexcept { return getTimeStructure().infinite != 0; }
    [[nodiscard]] float getAirFrequency() const noexcept { return getTimeStructure().airFrequency; }
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
    void parentHierarchyChanged() override;
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;
    void mouseDoubleClick (const juce::MouseEvent& event) override;

private:
    void reverbChanged (const halcyra::ReverbModel::Change& change) override;
    void parameterTold (HalcyraReverbParameter number) override;
    void filterTold (HalcyraFilter number) override;
    void gestureBounded() override { history.closeRun(); }
    void SourcePositionChanged (std::size_t index, const qel::Point3& position) override;
    void SpeakersPositionsChanged (const qel::Point3Array& positions) override;
    void OptionsChanged (lumo::PlaneBase& source) override;
    void endGesture();
    void sceneMoved (const lumo::poses::Poses& before, const lumo::poses::Poses& after);
    void apply (const halcyra::EditHistory::Step* step, float halcyra::EditHistory::Value::*side);
    void makePages();
    void moveFocus (bool forwards);
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

    const std::uint32_t numsources, numspeakers, numinternals;
    halcyra::SelfWakingModel model;
    halcyra::EditHistory history;
    juce::Component* lastPressed = nullptr; // only compared, never dereferenced: what was last pressed
    int stepsOfClicks = 0;                  // steps made by the presses of one multiple click
    qel::Listeners<Listener> listeners;
    std::unique_ptr<halcyra::UndoablePlane> planeWithoutPage; // until the pages are created
    halcyra::UndoablePlane* const plane;

    struct Pages;
    std::unique_ptr<Pages> pages;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HalcyraComponent)
};
