#pragma once

#include "Operation.h"
#include "Request.h"

/// A facade's operations, each said once: its code, whether the caller waits, the function that carries it out and,
/// where nothing will do, the answer when nobody answers. Both the call and the handler's row come from it.
///
///     enum Request { CREATE = 0, DESTROY = 1, BLINK = 2, IS_LIT = 3 };
///
///     struct Lamp::Ops
///         : Operations<Posts<CREATE, &Lamp::create>, Waits<DESTROY, &Lamp::destroy>,
///                      Posts<BLINK, &LampPrivateIfc::blink>, Waits<IS_LIT, &LampPrivateIfc::isLit>> {};
///
///     void Lamp::blink(int milliseconds)
///     {
///         Ops::call<BLINK>(*this, mImplementation, milliseconds);
///     }
///
///     void Lamp::processGuiRequest(GuiRequestEvent& request)
///     {
///         Ops::carryOut(*this, mImplementation, request);
///         signalComplete(request);
///     }
///
/// A function is the private side's, and skipped while there is none, or the facade's own, which then works on the
/// private side and never calls an operation of the table. Arguments go to the record's fields in order, each kind by
/// itself: texts, numbers, flags, objects.
namespace DisplayAPI {

/// At once on the GUI thread, through a record elsewhere.
struct AtOnceOrPosted {
    template <typename Row, typename Facade, typename Side, typename... Args>
    static typename Row::Answer call(Facade& facade, Side& side, Args&&... args)
    {
        if (Widget::isGuiThread())
            return Row::run(facade, side, std::forward<Args>(args)...);
        if constexpr (requires { Row::supersede(facade); })
            Row::supersede(facade);
        auto* const record = new typename Row::Record(&facade, Row::CODE);
        Row::Fields::fill(*record, std::forward<Args>(args)...);
        return Row::ask(*record, [&facade](GuiRequestEvent* filled) {
            Row::WAITS ? facade.postEvent(filled) : facade.postEventAsync(filled);
        });
    }
};

/// Through a record on every thread. On the GUI thread nobody ever frees it.
struct ThroughHelper {
    template <typename Row, typename Facade, typename Side, typename... Args>
    static typename Row::Answer call(Facade& facade, Side&, Args&&... args)
    {
        GuiRequestEvent* const record = newHelperRecord(&facade, Row::CODE);
        Row::Fields::fill(*record, std::forward<Args>(args)...);
        return Row::ask(*record, [&facade](GuiRequestEvent* filled) { facade.postEventHelper(!Row::WAITS, filled); });
    }
};

template <typename Way, typename... Rows>
struct OperationTable {
    static_assert((Checked<Rows>::FITS && ...));
    static_assert(haveCodesOfTheirOwn<Rows...>(), "two rows have the same code");

    /// Does what the code's row says. `side` is the facade's member itself, so that no other thread reads it.
    template <int CODE, typename Facade, typename Side, typename... Args>
    static auto call(Facade& facade, Side& side, Args&&... args)
    {
        CodeNamesOf<std::remove_const_t<Facade>, Rows...>::areKnown();
        auto& caller = const_cast<std::remove_const_t<Facade>&>(facade);
        return Way::template call<RowOf<CODE, Rows...>>(caller, side, std::forward<Args>(args)...);
    }

    /// Carries the request out if its code is in the table; returns whether it is. Nothing of the facade is touched
    /// afterwards, which may be gone by then.
    template <typename Facade, typename Side>
    static bool carryOut(Facade& facade, Side& side, GuiRequestEvent& request)
    {
        const int code = request.getType();
        return ((code == Rows::CODE && (Rows::carryOut(facade, side, request), true)) || ...);
    }
};

template <typename... Rows>
using Operations = OperationTable<AtOnceOrPosted, Rows...>;

/// For a class that calls itself through Widget::postEventHelper().
template <typename... Rows>
using HelperOperations = OperationTable<ThroughHelper, Rows...>;

} // namespace DisplayAPI
