#pragma once
#include "gui/plane/PlaneComponent.h"

#include <string>
#include <vector>

/** Records a plane's notifications, one line each. */
class PlaneRecorder : public lumo::PlaneListener
{
public:
    explicit PlaneRecorder (lumo::PlaneBase& watched) : plane (watched) { plane.AddListener (this); }
    ~PlaneRecorder() override { plane.RemoveListener (this); }

    PlaneRecorder (const PlaneRecorder&) = delete;
    PlaneRecorder& operator= (const PlaneRecorder&) = delete;

    /** Returns the lines recorded so far and clears them. */
    [[nodiscard]] std::vector<std::string> Take() { return std::exchange (lines, {}); }
    /** Only those starting with a word. */
    [[nodiscard]] std::vector<std::string> Take (const std::string& word)
    {
        std::vector<std::string> some;
        for (auto& line : Take())
            if (line.rfind (word, 0) == 0)
                some.push_back (line);
        return some;
    }

    void SourcePositionChanged (std::size_t i, const qel::Point3& p) override { Write ("source", i, p); }
    void SpeakersPositionsChanged (const qel::Point3Array& all) override { Write ("speakers", all.size()); }
    void SpeakersProjectionChanged (const qel::Point3Array& all) override { Write ("projection", all.size()); }
    void SourceVisibleChanged (std::size_t i, bool on) override { Write ("sourcevisible", i, on); }
    void AllSourcesVisibleChanged (bool on) override { Write ("allsourcesvisible", on); }
    void SpeakerVisibleChanged (std::size_t i, bool on) override { Write ("speakervisible", i, on); }
    void AllSpeakersVisibleChanged (bool on) override { Write ("allspeakersvisible", on); }
    void SourceColourChanged (std::size_t i, float r, float, float, float) override { Write ("sourcecolour", i, r); }
    void SpeakerColourChanged (std::size_t i, float r, float, float, float) override { Write ("speakercolour", i, r); }
    void GridColourChanged (float r, float, float, float) override { Write ("gridcolour", r); }
    void SourceApertureChanged (std::size_t i, float degrees) override { Write ("aperture", i, degrees); }
    void SourceYawChanged (std::size_t i, float degrees) override { Write ("yaw", i, degrees); }
    void SourceLabelChanged (std::size_t i, const qel::String& s) override { Write ("label", i, s.str()); }
    void SpeakerNameChanged (std::size_t i, const qel::String& s) override { Write ("name", i, s.str()); }
    void SourceRadiusChanged (std::size_t i, float metres) override { Write ("radius", i, metres); }
    void ListenerPositionChanged (const qel::Point3& p, lumo::PlaneBase&) override { Write ("listener", p); }
    void ListenerYawChanged (float degrees) override { Write ("listeneryaw", degrees); }
    void ListenerPitchChanged (float degrees) override { Write ("listenerpitch", degrees); }
    void ListenerRollChanged (float degrees) override { Write ("listenerroll", degrees); }
    void ListenerOrientationChanged (float y, float p, float r) override { Write ("orientation", y, p, r); }
    void SelectionChanged (const Flags& flags, lumo::PlaneBase&) override { Write ("selection", Text (flags)); }
    void SpeakerSelectionChanged (std::size_t i, bool on, lumo::PlaneBase&) override
    {
        Write ("speakerselection", i, on);
    }
    void PointerMoved (const qel::Point3& p) override { Write ("pointer", p); }
    void PointerButtonChanged (bool down) override { Write ("button", down); }
    void SourceDoubleClicked (std::size_t i, lumo::PlaneBase&) override { Write ("doubleclick", i); }
    void KeyCommand (int number, lumo::PlaneBase&) override { Write ("command", number); }
    void OptionsChanged (lumo::PlaneBase&) override { Write ("options"); }
    void SourceAreasChanged (std::size_t i, const Flags& f, lumo::PlaneBase&) override
    {
        Write ("sourceareas", i, Text (f));
    }
    void SpeakerAreasChanged (std::size_t i, const Flags& f, lumo::PlaneBase&) override
    {
        Write ("speakerareas", i, Text (f));
    }
    void ListenerAreasChanged (const Flags& f, lumo::PlaneBase&) override { Write ("listenerareas", Text (f)); }

private:
    static std::string Text (const std::string& text) { return text; }
    static std::string Text (bool on) { return on ? "on" : "off"; }
    static std::string Text (int number) { return std::to_string (number); }
    static std::string Text (std::size_t number) { return std::to_string (number); }
    static std::string Text (float number)
    {
        const auto rounded = std::round (number * 100.0f) / 100.0f;
        return juce::String (rounded == 0.0f ? 0.0f : rounded, 2).toStdString();
    }
    static std::string Text (const qel::Point3& p) { return Text (p.x) + " " + Text (p.y) + " " + Text (p.z); }
    static std::string Text (const Flags& flags)
    {
        std::string text;
        for (const bool flag : flags)
            text += flag ? '1' : '0';
        return text;
    }

    template <typename... Values>
    void Write (const std::string& word, const Values&... values)
    {
        lines.push_back (word);
        ((lines.back() += " " + Text (values)), ...);
    }

    lumo::PlaneBase& plane;
    std::vector<std::string> lines;
};
