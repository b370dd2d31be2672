#include "common/OrvaneDspMaxConsoleNotifier.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>

using testing::ElementsAre;

namespace
{

struct Listener
{
    int number = 0;
};

/** Three listeners, ordered by address. */
class ListenersTest : public testing::Test
{
protected:
    ListenersTest()
    {
        for (std::size_t i = 0; i < three.size(); ++i)
            three[i].number = static_cast<int> (i);
    }

    void addAll()
    {
        for (std::size_t i = 0; i < three.size(); ++i)
            listeners.add (&three[i]);
    }

    std::vector<int> called()
    {
        std::vector<int> order;
        listeners.call ([&] (Listener& l) { order.push_back (l.number); });
        return order;
    }

    std::array<Listener, 3> three;
    qel::Listeners<Listener> listeners;
};

}

TEST_F (ListenersTest, AreCalledFromTheLastAddressToTheFirstEachOnce)
{
    EXPECT_THAT (called(), ElementsAre());
    for (const std::size_t i : { 1u, 0u, 2u, 1u })
        listeners.add (&three[i]);
    listeners.add (nullptr);
    EXPECT_THAT (called(), ElementsAre (2, 1, 0));

    listeners.remove (&three[1]);
    listeners.remove (&three[1]);
    listeners.remove (nullptr);
    EXPECT_THAT (called(), ElementsAre (2, 0));
}

TEST_F (ListenersTest, MayRemoveThemselvesDuringTheWalk)
{
    addAll();
    int calls = 0;
    listeners.call ([&] (Listener& l) {
        ++calls;
        listeners.remove (&l);
    });
    EXPECT_EQ (calls, 3);
    EXPECT_EQ (listeners.size(), 0u);
}

TEST_F (ListenersTest, MayRemoveOthersDuringTheWalk)
{
    struct Case
    {
        std::vector<std::size_t> removed; // by the first one called
        std::vector<int> order;
    };
    const Case cases[] = {
        { { 2, 1 }, { 2, 0 } }, { { 0 }, { 2, 2, 1 } }, { { 0, 1 }, { 2, 2 } }, { { 0, 1, 2 }, { 2 } }
    };
    for (const auto& c : cases) {
        addAll();
        std::vector<int> order;
        listeners.call ([&] (Listener& l) {
            order.push_back (l.number);
            for (const auto i : c.removed)
                listeners.remove (&three[i]);
        });
        EXPECT_EQ (order, c.order);
    }
}

namespace
{

class Console : public qel::MaxConsoleNotifier::Listener
{
public:
    void postToMaxConsole (const qel::String& text) override { lines.push_back (text.str()); }
    std::vector<std::string> lines;
};

class Notifier : public qel::MaxConsoleNotifier
{
public:
    using MaxConsoleNotifier::postToMaxConsole;
};

}

TEST (MaxConsoleNotifier, SendsTextToWhoListens)
{
    Console console;
    Notifier notifier;
    notifier.postToMaxConsole ("nobody hears");
    notifier.addMaxConsoleListener (&console);
    notifier.postToMaxConsole ("hello");
    notifier.removeMaxConsoleListener (&console);
    notifier.postToMaxConsole ("gone");
    EXPECT_THAT (console.lines, ElementsAre ("hello"));
}
