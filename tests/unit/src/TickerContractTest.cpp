// What a ticker promises of each of its operations.

#include "DisplayAPI/Ticker.h"

#include "support/FacadeContract.h"

using namespace DisplayAPI;

namespace {

/// Its private side is the library's own and notes nothing.
struct Tickers : test::WidgetSubject<Ticker> {
    static constexpr bool CAN_BE_BARE = false;

    explicit Tickers(bool) { facade = std::make_unique<Ticker>("News"); }
};

const bool TICKER_CHECKED = test::Contract<Tickers>("TickerContractTest")
                                .waits("setText", 1, [](Tickers& t) { t->setText("other"); })
                                .record({.text1 = "other"})
                                .waits("getText", 2, "News", "", [](Tickers& t) { return t->getText(); })
                                .completes({-1, 3, 100})
                                .check();

} // namespace
