#include "reverb/ReverbModel.h"

#include "reverb/HalcyraRoom.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace halcyra
{
namespace
{

/** The parameters that a room size sets, in the order of notification. */
constexpr HalcyraReverbParameter roomParameters[] = { parameter::earlyStart,  parameter::earlyEnd,
                                                      parameter::earlyDistr,  parameter::clusterStart,
                                                      parameter::clusterEnd,  parameter::clusterDistr,
                                                      parameter::reverbStart, parameter::modalDensity };

const ParameterRow& rowOf (HalcyraReverbParameter number) noexcept
{
    return parameterTable[static_cast<std::size_t> (number)];
}

float clampedToRow (HalcyraReverbParameter number, float value) noexcept
{
    const auto& range = rowOf (number).range;
    return std::clamp (value, static_cast<float> (range.lowest), static_cast<float> (range.highest));
}

bool isFilter (HalcyraFilter number) noexcept
{
    return number >= 0 && number < static_cast<HalcyraFilter> (filterNames.size());
}

/** A room's value for a parameter number. */
float derived (const RoomParameters& room, HalcyraReverbParameter number) noexcept
{
    switch (number) {
    case parameter::earlyStart:
        return room.earlyStart;
    case parameter::earlyEnd:
        return room.earlyEnd;
    case parameter::earlyDistr:
        return room.earlyDistr;
    case parameter::clusterStart:
        return room.clusterStart;
    case parameter::clusterEnd:
        return room.clusterEnd;
    case parameter::clusterDistr:
        return room.clusterDistr;
    case parameter::reverbStart:
        return room.reverbStart;
    default:
        return room.modalDensity;
    }
}

}

ReverbModel::ReverbModel (int internals) noexcept : numinternals (internals)
{
    for (const auto& row : parameterTable)
        if (! row.isSwitch())
            values.*row.value = row.range.stepped (values.*row.value);
}

const HLShelfParameters& ReverbModel::filter (HalcyraFilter number) const
{
    return filters.at (static_cast<std::size_t> (number));
}

float ReverbModel::value (ReverbCell number) const noexcept
{
    if (const auto* row = parameterRow (number))
        return valueOf (values, *row);
    if (number == cell::roomSize)
        return room;
    if (number < cell::firstFilter || number >= cell::count)
        return 0;
    const auto place = static_cast<std::size_t> (number - cell::firstFilter);
    return filters[place / shelfTable.size()].*shelfTable[place % shelfTable.size()].value;
}

// ---- Parameters

void ReverbModel::setParameter (HalcyraReverbParameter number, float wish, Edit edit)
{
    const auto* row = parameterRow (number);
    if (row == nullptr || ! std::isfinite (wish))
        return;
    const auto linked = linkedIndex (number);
    if (linked >= 0 && edit == Edit::message)
        return wishTime (linked, wish);
    if (number == held && edit != Edit::hand)
        return;
    if (linked >= 0)
        timesWished.reset();
    store (number,
           row->isSwitch() ? (wish != 0 ? 1.0f : 0.0f) : row->range.stepped (limited (*row, wish, stageTimes())), edit);
}

void ReverbModel::store (HalcyraReverbParameter number, float value, Edit edit)
{
    const auto& row = rowOf (number);
    const float before = valueOf (values, row);
    if (value == before)
        return;
    if (row.isSwitch())
        values.*row.flag = value != 0 ? 1 : 0;
    else
        values.*row.value = value;
    changed ({ number, before, value, edit });
    if (edit == Edit::quiet)
        return;
    if (row.isSwitch())
        listeners.call ([number] (Listener& l) { l.parameterTold (number); });
    else
        tellLater (number);
}

int ReverbModel::linkedIndex (HalcyraReverbParameter number) noexcept
{
    const auto* place = std::find (std::begin (linkedTimes), std::end (linkedTimes), number);
    return place == std::end (linkedTimes) ? -1 : static_cast<int> (place - std::begin (linkedTimes));
}

StageTimes ReverbModel::stageTimes() const noexcept
{
    return { values.earlyStart, values.earlyEnd, values.clusterStart, values.clusterEnd };
}

void ReverbModel::wishTime (int index, float wish)
{
    openTurn();
    const auto number = linkedTimes[index];
    timeWishes[static_cast<std::size_t> (index)] = clampedToRow (number, wish);
    timesWished.set (static_cast<std::size_t> (index));
    if (timesWished.all())
        return recallTimes (timeWishes, Edit::message);
    if (number == held)
        return;
    const auto& row = rowOf (number);
    store (number, row.range.stepped (limited (row, wish, stageTimes())), Edit::message);
}

/** The requested times made consistent with each other, whatever the present ones. */
ReverbModel::Times ReverbModel::fitted (Times wishes) const noexcept
{
    const auto lowest = [] (auto number) { return static_cast<float> (rowOf (number).range.lowest); };
    HalcyraTimeStructure fit;
    fit.earlyStart = lowest (parameter::earlyStart);
    fit.clusterStart = lowest (parameter::clusterStart);
    fit.clusterEnd = static_cast<float> (rowOf (parameter::clusterEnd).range.highest);
    if (const auto index = linkedIndex (held); index >= 0) // the others fit around the one the user is dragging
        wishes[static_cast<std::size_t> (index)] = fit.*rowOf (held).value = valueOf (values, rowOf (held));
    for (std::size_t i = 0; i < wishes.size(); ++i) {
        const auto& row = rowOf (linkedTimes[i]);
        const StageTimes present{ fit.earlyStart, fit.earlyEnd, fit.clusterStart, fit.clusterEnd };
        wishes[i] = fit.*row.value = row.range.stepped (limited (row, wishes[i], present));
    }
    return wishes;
}

void ReverbModel::recallTimes (const Times& wishes, Edit edit)
{
    const auto fit = fitted (wishes);
    for (const auto& row : parameterTable)
        if (const auto index = linkedIndex (row.number); index >= 0)
            store (row.number, fit[static_cast<std::size_t> (index)], edit);
}

// ---- The room

void ReverbModel::setRoomSize (float cubicMetres, Edit edit)
{
    if (! std::isfinite (cubicMetres) || (held == cell::roomSize && edit != Edit::hand))
        return;
    timesWished.reset();
    const float volume = roomRange.stepped (cubicMetres);
    const bool moves = volume != room;
    setRoomSlider (volume, edit);
    const auto parameters = computeRoomParameters (numinternals, volume, values.tr0);
    Times times{};
    for (std::size_t i = 0; i < times.size(); ++i)
        times[i] = clampedToRow (linkedTimes[i], derived (parameters, linkedTimes[i]));
    times = fitted (times);
    for (const auto number : roomParameters) {
        const auto index = linkedIndex (number);
        if (index >= 0)
            store (number, times[static_cast<std::size_t> (index)], edit);
        else if (number != held || edit == Edit::hand)
            store (number, rowOf (number).range.stepped (derived (parameters, number)), edit);
        if (moves && edit != Edit::quiet)
            tellLater (number);
    }
}

void ReverbModel::setRoomSlider (float cubicMetres, Edit edit)
{
    if (cubicMetres == room)
        return;
    const float before = std::exchange (room, cubicMetres);
    changed ({ cell::roomSize, before, room, edit });
}

// ---- Filters

void ReverbModel::setFilter (HalcyraFilter number, const HLShelfParameters& wish, Edit edit, bool forced)
{
    if (! isFilter (number) || ! isFinite (wish))
        return;
    auto filter = clipped (wish);
    for (std::size_t i = 0; i < shelfTable.size(); ++i)
        if (cell::ofFilter (number, i) == held && edit != Edit::hand)
            filter.*shelfTable[i].value = value (held);
    if (filter == filters[static_cast<std::size_t> (number)] && ! forced)
        return;
    storeFilter (number, filter, edit);
    tellFilter (number, edit);
}

void ReverbModel::setFilterField (HalcyraFilter number, std::size_t field, float wish, Edit edit)
{
    if (! isFilter (number) || field >= shelfTable.size())
        return;
    auto filter = filters[static_cast<std::size_t> (number)];
    filter.*shelfTable[field].value = wish;
    setFilter (number, filter, edit, true);
}

void ReverbModel::storeFilter (HalcyraFilter number, const HLShelfParameters& wish, Edit edit)
{
    auto& filter = filters[static_cast<std::size_t> (number)];
    const auto before = std::exchange (filter, wish);
    for (std::size_t i = 0; i < shelfTable.size(); ++i) {
        const auto field = shelfTable[i].value;
        if (before.*field != wish.*field)
            changed ({ cell::ofFilter (number, i), before.*field, wish.*field, edit });
    }
}

void ReverbModel::tellFilter (HalcyraFilter number, Edit edit)
{
    if (edit != Edit::quiet)
        listeners.call ([number] (Listener& l) { l.filterTold (number); });
}

// ---- All of them

void ReverbModel::reset (Edit edit)
{
    for (HalcyraFilter number = 0; isFilter (number); ++number)
        resetFilter (number, edit);
    resetParameters (edit);
}

void ReverbModel::recallParameters (const HalcyraTimeStructure& wish, Edit edit)
{
    std::array<Wish, cell::firstFilter> wishes;
    for (const auto& row : parameterTable)
        wishes[static_cast<std::size_t> (row.number)] = { row.number, valueOf (wish, row) };
    wishes.back() = { cell::roomSize, defaultRoomSize };
    recall (wishes.data(), wishes.size(), edit);
}

/** Stores, and so notifies, in this order: the room size and what precedes the times, the times, other numbers, and
    last switches and filters, which notify at once. */
void ReverbModel::recall (const Wish* first, std::size_t count, Edit edit)
{
    timesWished.reset();
    std::array<float, cell::count> targets;
    std::bitset<cell::count> wished;
    for (const auto* wish = first; wish != first + count; ++wish)
        if (wish->cell >= 0 && wish->cell < cell::count && wish->cell != held && std::isfinite (wish->value)) {
            targets[static_cast<std::size_t> (wish->cell)] = wish->value;
            wished.set (static_cast<std::size_t> (wish->cell));
        }
    const auto isWished = [&] (ReverbCell number) { return wished.test (static_cast<std::size_t> (number)); };
    const auto target = [&] (ReverbCell number) { return targets[static_cast<std::size_t> (number)]; };

    if (isWished (cell::roomSize))
        setRoomSlider (roomRange.stepped (target (cell::roomSize)), edit);
    const auto storeRows = [&] (auto&& belongs) {
        for (const auto& row : parameterTable)
            if (isWished (row.number) && linkedIndex (row.number) < 0 && belongs (row))
                store (row.number, row.range.stepped (target (row.number)), edit);
    };
    storeRows ([] (const ParameterRow& row) { return row.number < parameter::earlyStart; });
    if (std::any_of (std::begin (linkedTimes), std::end (linkedTimes), isWished)) {
        Times times{};
        for (std::size_t i = 0; i < times.size(); ++i)
            times[i] = isWished (linkedTimes[i]) ? clampedToRow (linkedTimes[i], target (linkedTimes[i]))
                                                 : value (linkedTimes[i]);
        recallTimes (times, edit);
    }
    storeRows ([] (const ParameterRow& row) { return row.number > parameter::earlyStart && ! row.isSwitch(); });
    storeRows ([] (const ParameterRow& row) { return row.isSwitch(); });

    for (HalcyraFilter number = 0; isFilter (number); ++number) {
        auto filter = filters[static_cast<std::size_t> (number)];
        for (std::size_t i = 0; i < shelfTable.size(); ++i)
            if (isWished (cell::ofFilter (number, i)))
                filter.*shelfTable[i].value = target (cell::ofFilter (number, i));
        setFilter (number, filter, edit);
    }
}

// ---- Notification

void ReverbModel::changed (const Change& change)
{
    if (change.edit != Edit::quiet)
        openTurn();
    listeners.call ([&change] (Listener& l) { l.reverbChanged (change); });
}

void ReverbModel::tellLater (HalcyraReverbParameter number)
{
    openTurn();
    waiting.add (number);
}

void ReverbModel::openTurn()
{
    if (! std::exchange (turnIsOpen, true) && wakeTurnEnd)
        wakeTurnEnd();
}

void ReverbModel::endTurn()
{
    turnIsOpen = false;
    timesWished.reset();
    const auto numbers = std::exchange (waiting, {});
    for (const auto number : numbers)
        listeners.call ([number] (Listener& l) { l.parameterTold (number); });
}

}
