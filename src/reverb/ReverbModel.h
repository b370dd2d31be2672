#pragma once
#include "common/OrvaneDspListeners.h"
#include "reverb/HalcyraLimits.h"
#include "reverb/HalcyraParameters.h"

#include <bitset>
#include <functional>

namespace halcyra
{

/** One value of the model: a parameter by its number, the room size, or a field of a filter. */
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

/** Where a change comes from. */
enum class Edit
{
    quiet,   // no notification
    message, // notifies
    hand     // notifies, and can be undone
};

/** Stores the reverberator's values, each once: 20 parameters, the room size and four filters.

    A parameter is limited by its row and its neighbours and takes effect at once; a filter is only clipped. Non-finite
    values and unknown numbers are ignored. Switches and filters notify at once; number parameters notify once each when
    the turn ends, in the order of their first change. A turn begins with its first change, which calls wakeTurnEnd; the
    receiver calls endTurn() behind everything already queued. One thread. */
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
        /** A value has changed: views update. */
        virtual void reverbChanged (const Change&) {}
        /** Send the parameter's value now. */
        virtual void parameterTold (HalcyraReverbParameter) {}
        virtual void filterTold (HalcyraFilter) {}
        /** The user's edits before and after this are separate gestures. */
        virtual void gestureBounded() {}
    };

    /** The number of internal channels affects what a room size sets. */
    explicit ReverbModel (int numinternals) noexcept;

    ReverbModel (const ReverbModel&) = delete;
    ReverbModel& operator= (const ReverbModel&) = delete;

    /** Not owned; may be added and removed during a call. */
    void addListener (Listener* listener) { listeners.add (listener); }
    void removeListener (Listener* listener) { listeners.remove (listener); }

    [[nodiscard]] int numInternals() const noexcept { return numinternals; }
    [[nodiscard]] const HalcyraTimeStructure& parameters() const noexcept { return values; }
    /** Filter 0 to 3. */
    [[nodiscard]] const HLShelfParameters& filter (HalcyraFilter number) const;
    [[nodiscard]] float roomSize() const noexcept { return room; }
    /** 0 for an unknown cell. */
    [[nodiscard]] float value (ReverbCell cell) const noexcept;

    /** Sets one parameter; a switch is on for any number but 0. Once messages of one turn have set all five linked
        times (starts and ends of the stages), their last values are recalled together, independent of order. */
    void setParameter (HalcyraReverbParameter number, float wish, Edit edit);
    /** Sets eight parameters from a volume in cubic metres, whatever their values. Notifies all eight if the stepped
        volume differs from the last one, otherwise those that change. */
    void setRoomSize (float cubicMetres, Edit edit);
    /** An equal filter neither changes nor notifies, unless forced. */
    void setFilter (HalcyraFilter number, const HLShelfParameters& wish, Edit edit, bool forced = false);
    /** Notifies always, even if equal. */
    void setFilterField (HalcyraFilter number, std::size_t field, float wish, Edit edit);
    void resetFilter (HalcyraFilter number, Edit edit) { setFilter (number, {}, edit, true); }
    /** Sets all parameters from the record, and resets the room size to its default. */
    void recallParameters (const HalcyraTimeStructure& wish, Edit edit);
    void resetParameters (Edit edit) { recallParameters ({}, edit); }
    /** Resets the parameters and the filters; the filters notify first. */
    void reset (Edit edit);

    /** A value to recall. */
    struct Wish
    {
        ReverbCell cell;
        float value;
    };
    /** Recalls values together: the linked times in an order in which they fit. */
    void recall (const Wish* first, std::size_t count, Edit edit);

    /** While the user holds a control, only its neighbours' limits can change its value. */
    void hold (ReverbCell cell) noexcept { held = cell; }
    void release() noexcept { held = cell::none; }

    /** Ends the present gesture, as each key press is one undo step. */
    void boundGesture()
    {
        listeners.call ([] (Listener& l) { l.gestureBounded(); });
    }

    /** Called at the first change of a turn. */
    std::function<void()> wakeTurnEnd;
    /** Notifies the number parameters that have changed. Changes made meanwhile begin a new turn. */
    void endTurn();
    /** Drops pending notifications that were sent by other means. */
    void forgetWaiting() noexcept { waiting.clear(); }

private:
    /** Starts and ends of the stages, in the order in which a set of them always fits. */
    static constexpr HalcyraReverbParameter linkedTimes[] = { parameter::reverbStart, parameter::earlyEnd,
                                                              parameter::clusterEnd, parameter::clusterStart,
                                                              parameter::earlyStart };
    using Times = std::array<float, std::size (linkedTimes)>;

    /** Parameter numbers in the order added, without duplicates. */
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
