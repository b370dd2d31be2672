#pragma once
#include "common/OrvaneDspListeners.h"
#include "reverb/HalcyraLimits.h"
#include "reverb/HalcyraParameters.h"

#include <bitset>
#include <functional>

namespace halcyra
{

/** One number of the model: a parameter by its number, the room size, or a field of a filter. */
using ReverbCell = int;

namespace cell
{
inline constexpr ReverbCell none = -1;
inline constexpr ReverbCell roomSize = parameter::count;
inline constexpr ReverbCell firstFilter = roomSize + 1;
inline constexpr int fieldsOfFilter = static_cast<int> (shelfTable.size());
inline constexpr int count = firstFilter + fieldsOfFilter * static_cast<int> (filterNames.size());

[[nodiscard]] constexpr ReverbCell ofFilter (HalcyraFilter filter, std::size_t field) noexcept
{
    return firstFilter + filter * fieldsOfFilter + static_cast<int> (field);
}
}

/** Who changes a value. */
enum class Edit
{
    quiet,   // nobody is told
    message, // told
    hand     // told, and a step that can be undone
};

/** The reverberator's values, each held once: 20 parameters, the room size and four filters.

    A parameter passes through its row and its neighbours on the way in and is then in force; a filter is only clipped.
    Values that are not finite and numbers that name nothing are ignored. Switches and filters are told at once, numbers
    when the turn ends, once each and in the order of their first change. A turn begins with its first change, which
    calls wakeTurnEnd; whoever hears that calls endTurn() behind everything that waits already. One thread. */
class ReverbModel
{
public:
    struct Change
    {
        ReverbCell cell;
        float before, after;
        Edit edit;
    };

    class Listener
    {
    public:
        virtual ~Listener() = default;
        /** A value has changed: what shows it follows. */
        virtual void reverbChanged (const Change&) {}
        /** The parameter's value leaves now. */
        virtual void parameterTold (HalcyraReverbParameter) {}
        virtual void filterTold (HalcyraFilter) {}
        /** The edits of the hand before and after this are gestures of their own. */
        virtual void gestureBounded() {}
    };

    /** Internal channels bear on what a room size derives. */
    explicit ReverbModel (int numinternals) noexcept;

    ReverbModel (const ReverbModel&) = delete;
    ReverbModel& operator= (const ReverbModel&) = delete;

    /** Not owned; may come and go during a call. */
    void addListener (Listener* listener) { listeners.add (listener); }
    void removeListener (Listener* listener) { listeners.remove (listener); }

    [[nodiscard]] int numInternals() const noexcept { return numinternals; }
    [[nodiscard]] const HalcyraTimeStructure& parameters() const noexcept { return values; }
    /** Filter 0 to 3. */
    [[nodiscard]] const HLShelfParameters& filter (HalcyraFilter number) const;
    [[nodiscard]] float roomSize() const noexcept { return room; }
    /** 0 for a cell that is none. */
    [[nodiscard]] float value (ReverbCell cell) const noexcept;

    /** Sets one parameter, a switch by 0 or another number. Once messages of one turn have set all five linked times
        (the starts and ends of the stages), their last wishes are recalled together, whatever their order. */
    void setParameter (HalcyraReverbParameter number, float wish, Edit edit);
    /** Derives eight parameters from a volume in cubic metres, whatever stood before. All eight are told if the stepped
        volume is another one than before, else those that change. */
    void setRoomSize (float cubicMetres, Edit edit);
    /** An equal filter changes and tells nothing, unless forced. */
    void setFilter (HalcyraFilter number, const HLShelfParameters& wish, Edit edit, bool forced = false);
    /** Always told, even when equal. */
    void setFilterField (HalcyraFilter number, std::size_t field, float wish, Edit edit);
    void resetFilter (HalcyraFilter number, Edit edit) { setFilter (number, {}, edit, true); }
    /** All parameters as that record has them, and the room size back to its default. */
    void recallParameters (const HalcyraTimeStructure& wish, Edit edit);
    void resetParameters (Edit edit) { recallParameters ({}, edit); }
    /** Those and the filters', which are told first. */
    void reset (Edit edit);

    /** A value to bring back. */
    struct Wish
    {
        ReverbCell cell;
        float value;
    };
    /** Brings values back together: the linked times in an order in which they fit. */
    void recall (const Wish* first, std::size_t count, Edit edit);

    /** While a hand holds a control, nobody else changes its value but its neighbours' limits. */
    void hold (ReverbCell cell) noexcept { held = cell; }
    void release() noexcept { held = cell::none; }

    /** Keeps what the hand has done so far apart from what it does next, as each key press is one step to undo. */
    void boundGesture()
    {
        listeners.call ([] (Listener& l) { l.gestureBounded(); });
    }

    /** Called at a turn's first change. */
    std::function<void()> wakeTurnEnd;
    /** Tells the numbers that have changed. What they set going begins a new turn. */
    void endTurn();
    /** Numbers that wait have been told otherwise. */
    void forgetWaiting() noexcept { waiting.clear(); }

private:
    /** Starts and ends of the stages, in the order in which a set of them always fits. */
    static constexpr HalcyraReverbParameter linkedTimes[] = { parameter::reverbStart, parameter::earlyEnd,
                                                              parameter::clusterEnd, parameter::clusterStart,
                                                              parameter::earlyStart };
    using Times = std::array<float, std::size (linkedTimes)>;

    /** Parameter numbers in the order in which they came, each once. */
    class Numbers
    {
    public:
        void add (HalcyraReverbParameter number) noexcept
        {
            if (! isIn.test (static_cast<std::size_t> (number)))
                order[isIn.count()] = number;
            isIn.set (static_cast<std::size_t> (number));
        }
        void clear() noexcept { isIn.reset(); }
        [[nodiscard]] const HalcyraReverbParameter* begin() const noexcept { return order.data(); }
        [[nodiscard]] const HalcyraReverbParameter* end() const noexcept { return order.data() + isIn.count(); }

    private:
        std::array<HalcyraReverbParameter, parameter::count> order{};
        std::bitset<parameter::count> isIn;
    };

    [[nodiscard]] static int linkedIndex (HalcyraReverbParameter number) noexcept;
    [[nodiscard]] StageTimes stageTimes() const noexcept;
    void wishTime (int index, float wish);
    [[nodiscard]] Times fitted (Times wishes) const noexcept;
    void recallTimes (const Times& wishes, Edit edit);
    void setRoomSlider (float cubicMetres, Edit edit);
    void store (HalcyraReverbParameter number, float value, Edit edit);
    void storeFilter (HalcyraFilter number, const HLShelfParameters& wish, Edit edit);
    void changed (const Change& change);
    void tellLater (HalcyraReverbParameter number);
    void tellFilter (HalcyraFilter number, Edit edit);
    void openTurn();

    const int numinternals;
    HalcyraTimeStructure values;
    std::array<HLShelfParameters, filterNames.size()> filters;
    float room = defaultRoomSize;
    ReverbCell held = cell::none;

    bool turnIsOpen = false;
    Numbers waiting;
    Times timeWishes{};
    std::bitset<std::size (linkedTimes)> timesWished;
    qel::Listeners<Listener> listeners;
};

}
