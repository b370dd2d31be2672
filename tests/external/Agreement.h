#pragma once
#include "ControlTest.h"

#include "external/ReverbParameters.h"
#include "gui/plane/PlaneComponent.h"
#include "gui/verb/HLShelfComponent.h"
#include "gui/verb/HalcyraComponent.h"
#include "gui/verb/HalcyraTimeStructureLayout.h"
#include "text/OrvaneDspUnitText.h"

#include <algorithm>
#include <cmath>
#include <map>

/** What has to agree at any time: attributes with what is being sent; and at the end of a turn: window, model, scene,
    attributes and what was sent last. */
class Agreement : public ControlTest
{
protected:
    Agreement()
    {
        patch.setListener ([this] (const bench::Event& event) {
            if (! event.onMainThread)
                return;
            if (event.kind == bench::Event::Kind::out && event.outlet == 0) {
                told[event.box + keyOf (event)] = event.atoms;
                isStoredAlready (event);
            } else if (event.kind == bench::Event::Kind::bug)
                bugs.push_back (event.text);
        });
    }

    static std::string keyOf (const bench::Event& event)
    {
        if (event.atoms.empty() || event.atoms.front().a_type == A_FLOAT)
            return " " + event.text;
        const auto& first = event.atoms.front();
        return " " + event.text + " " +
               (first.a_type == A_SYM ? std::string (atom_getsym (&first)->s_name)
                                      : std::to_string (atom_getlong (&first)));
    }

    static HalcyraComponent& componentOf (const TestBox& box) { return *box.record<t_halcyra_control>()->component; }

    // ---- Invariants at any time

    /** Whoever reads back what was just sent gets the same value. */
    void isStoredAlready (const bench::Event& event)
    {
        const auto* box = patch.find (event.box);
        if (box == nullptr || event.atoms.empty())
            return;
        const auto stored = [&] (const char* name) { return numbersOf (bench::attributeOf (*box, name).value()); };
        const auto isWord = event.atoms.front().a_type == A_SYM;
        const auto isCartesian = [&] (const t_atom& atom) {
            return atom.a_type == A_SYM && std::string_view (atom_getsym (&atom)->s_name) == "xyz";
        };
        if (event.text == "source" && event.atoms.size() == 5 && isCartesian (event.atoms[1])) {
            const auto all = stored ("sourcespositions");
            const auto first = all.begin() + 3 * (atom_getlong (&event.atoms.front()) - 1);
            EXPECT_EQ (std::vector<float> (first, first + 3),
                       numbersOf ({ event.atoms.begin() + 2, event.atoms.end() }))
                << "when told: " << bench::lineOf (event);
        } else if (event.text == "speakers" && isCartesian (event.atoms.front())) {
            EXPECT_EQ (stored ("speakerspositions"), numbersOf ({ event.atoms.begin() + 1, event.atoms.end() }))
                << "when told: " << bench::lineOf (event);
        } else if (! isWord && event.atoms.size() == 6) {
            EXPECT_EQ (stored (event.text.c_str()), numbersOf (event.atoms)) << "when told: " << bench::lineOf (event);
        } else if (isWord && event.atoms.size() == 2) {
            const auto* key = atom_getsym (&event.atoms.front())->s_name;
            for (const auto& row : halcyra::parameterTable)
                if (event.text == row.selector && std::string_view (row.key) == key) {
                    EXPECT_EQ (stored (halcyra::reverbWords (row.number).attribute->s_name).front(),
                               numberOf (event.atoms.back()))
                        << "when told: " << bench::lineOf (event);
                }
        }
    }

    // ---- Invariants at the end of a turn

    void agree (const TestBox& box)
    {
        const auto& component = componentOf (box);
        const auto& model = component.getModel();
        for (const auto& row : halcyra::parameterTable) {
            const auto value = model.value (row.number);
            const auto* attribute = halcyra::reverbWords (row.number).attribute->s_name;
            EXPECT_EQ (row.range.stepped (value), value) << attribute << " stands between steps";
            EXPECT_EQ (numbersOf (bench::attributeOf (*box, attribute).value()), std::vector<float>{ value })
                << attribute;
            const auto& left = told[box->name + " " + row.selector + " " + row.key];
            ASSERT_EQ (left.size(), 2u) << row.name;
            EXPECT_EQ (numberOf (left.back()), value) << "told: " << row.selector << " " << row.key;
        }
        for (HalcyraFilter filter = 0; filter < 4; ++filter) {
            const std::string name = halcyra::filterNames[static_cast<std::size_t> (filter)];
            const auto& held = component.getFilter (filter);
            std::vector<float> values (halcyra::shelfTable.size());
            std::transform (halcyra::shelfTable.begin(), halcyra::shelfTable.end(), values.begin(),
                            [&] (const halcyra::ShelfRow& row) { return held.*row.value; });
            EXPECT_EQ (numbersOf (bench::attributeOf (*box, name).value()), values) << name;
            EXPECT_EQ (numbersOf (told[box->name + " " + name]), values) << "told: " << name;
        }
        sceneAgrees (box);
        if (component.getNumChildComponents() > 0)
            windowAgrees (component);
        EXPECT_EQ (bugs, std::vector<std::string>());
    }

    static float numberOf (const t_atom& atom) { return static_cast<float> (atom_getfloat (&atom)); }

    static std::vector<float> numbersOf (const bench::Atoms& atoms)
    {
        std::vector<float> numbers;
        for (const auto& atom : atoms)
            numbers.push_back (numberOf (atom));
        return numbers;
    }

    void sceneAgrees (const TestBox& box)
    {
        const auto& x = *box.record<t_halcyra_control>();
        const auto& plane = *x.plane;
        const auto pointOf = [] (const float* values) { return qel::Point3{ values[0], values[1], values[2] }; };
        const auto isAngle = [] (float radians, float degrees) {
            return std::abs (std::remainder (static_cast<double> (radians) -
                                                 static_cast<double> (degrees) * 3.14159265358979 / 180,
                                             2 * 3.14159265358979)) < 1e-5;
        };
        for (std::size_t i = 0; i < plane.GetNumSources(); ++i) {
            const auto& source = plane.GetScene().sources[i];
            EXPECT_EQ (pointOf (x.sourcespositions + 3 * i), source.position) << "source " << i;
            EXPECT_TRUE (isAngle (source.yaw, static_cast<float> (atom_getfloat (&x.yaw[i])))) << "yaw " << i;
            EXPECT_TRUE (isAngle (source.aperture, static_cast<float> (atom_getfloat (&x.aperture[i]))))
                << "aperture " << i;
            EXPECT_EQ (source.radius, numberOf (x.radius[i])) << "radius " << i;
            EXPECT_EQ (source.level, numberOf (x.sourceslevels[i])) << "level " << i;
            EXPECT_EQ (lumo::Plane::Orientation::NameOf (source.yawMode), x.orientationmode[i]->s_name) << i;
            const auto colour = numbersOf ({ x.sourcecolor + 4 * i, x.sourcecolor + 4 * i + 4 });
            EXPECT_EQ (source.Colour(), juce::Colour::fromFloatRGBA (colour[0], colour[1], colour[2], colour[3])) << i;
            const auto& left = told[box->name + " source " + std::to_string (i + 1)];
            if (left.size() == 5 && std::string_view (atom_getsym (&left[1])->s_name) == "xyz") {
                EXPECT_EQ (numbersOf ({ left.begin() + 2, left.end() }),
                           (std::vector<float>{ source.position.x, source.position.y, source.position.z }))
                    << "told: source " << i;
            }
        }
        for (std::size_t i = 0; i < plane.GetNumSpeakers(); ++i)
            EXPECT_EQ (pointOf (x.speakerspositions + 3 * i), plane.GetSpeakerPosition (i)) << "speaker " << i;
        EXPECT_EQ (pointOf (x.listenerposition), plane.GetListenerPosition());
        EXPECT_TRUE (isAngle (plane.GetListener().yaw, x.listeneryaw));
        EXPECT_TRUE (isAngle (plane.GetListener().pitch, x.listenerpitch));
        EXPECT_TRUE (isAngle (plane.GetListener().roll, x.listenerroll));
        lumo::PlaneOptions options;
        plane.GetOptions (options);
        EXPECT_EQ (x.zoom, options.zoom);
        EXPECT_EQ (std::string (x.viewpoint->s_name), options.topView ? "top" : "front");
        EXPECT_EQ (lumo::Plane::Grid::NameOf (options.gridMode), x.gridmode->s_name);
        EXPECT_EQ (x.showspeakers != 0, options.speakersVisible);
        EXPECT_EQ (x.showheadphones != 0, options.headphonesVisible);
        EXPECT_EQ (x.showaperture != 0, options.apertureVisible);
        EXPECT_EQ (x.radiusconstraint != 0, options.radiusConstraint);
        EXPECT_EQ (x.circularconstraint != 0, options.circularConstraint);
        const auto& view = plane.GetSurface().viewTransform;
        EXPECT_EQ (x.xoffset, view.xOffset);
        EXPECT_EQ (x.yoffset, view.yOffset);
        EXPECT_EQ (x.zoffset, view.zOffset);
    }

    static void showsValue (const juce::Slider& slider, const halcyra::ValueLabel& label,
                            const halcyra::SliderRange& range, float value, const juce::String& text)
    {
        EXPECT_EQ (static_cast<float> (slider.getValue()), range.stepped (value)) << "slider " << slider.getName();
        EXPECT_EQ (label.shownText(), text) << "label of " << slider.getName();
    }

    void windowAgrees (const HalcyraComponent& component)
    {
        const auto& model = component.getModel();
        auto* tabs = dynamic_cast<juce::TabbedComponent*> (component.getChildComponent (0));
        auto* page = tabs->getCurrentContentComponent();
        if (page == nullptr || ! page->isShowing())
            return;
        if (tabs->getCurrentTabIndex() == 0) {
            const auto sliders = partsOf<juce::Slider> (*page);
            const auto labels = partsOf<halcyra::ValueLabel> (*page);
            ASSERT_EQ (sliders.size(), labels.size());
            showsValue (*sliders[0], *labels[0], halcyra::roomRange, model.roomSize(),
                        juce::String (static_cast<int> (model.roomSize())) + " m^3");
            std::size_t place = 1;
            for (const auto& where : halcyra::timeStructurePlaces) {
                const auto& row = *halcyra::parameterRow (where.number);
                if (row.isSwitch())
                    continue;
                const auto value = model.value (row.number);
                showsValue (*sliders[place], *labels[place], row.range, value,
                            juce::String (value, row.decimals) + row.unit);
                ++place;
            }
            for (const auto* toggle : partsOf<juce::ToggleButton> (*page))
                EXPECT_EQ (toggle->getToggleState(),
                           model.value (toggle->getName() == "air" ? halcyra::parameter::air
                                                                   : halcyra::parameter::infinite) != 0);
        }
        if (tabs->getCurrentTabIndex() != 1)
            return;
        HalcyraFilter filter = 0;
        for (auto* column : partsOf<lumo::HLShelfComponent> (*page)) {
            const auto sliders = partsOf<juce::Slider> (*column);
            const auto labels = partsOf<halcyra::ValueLabel> (*column);
            for (std::size_t i = 0; i < halcyra::shelfTable.size(); ++i) {
                const auto& row = halcyra::shelfTable[i];
                const auto value = model.value (halcyra::cell::ofFilter (filter, i));
                const auto wide = static_cast<double> (value);
                showsValue (
                    *sliders[i], *labels[i], row.range, value,
                    juce::String (
                        (row.isFrequency ? qel::frequencyText (wide, true) : qel::gainText (wide, true)).c_str()));
            }
            ++filter;
        }
    }

    template <typename Part>
    static std::vector<Part*> partsOf (juce::Component& parent)
    {
        std::vector<Part*> parts;
        for (auto* child : parent.getChildren())
            if (auto* part = dynamic_cast<Part*> (child))
                parts.push_back (part);
        return parts;
    }

    /** The last output per outlet message, by box and first words: "reverb tr0". */
    std::map<std::string, bench::Atoms> told;
    std::vector<std::string> bugs;
};
