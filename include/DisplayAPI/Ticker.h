#pragma once

#include "DisplayAPI/Widget.h"

#include <string>

namespace DisplayAPI {

class TickerPrivateIfc;

/// A line of text for a list: it runs where it is too long for its place, and stands still where it fits.
///
/// Threads: safe from any thread but for the destructor. Every operation waits when called off the GUI thread.
/// Delete tickers on the GUI thread: deleted elsewhere, their GUI-thread side stays behind.
/// Ownership: a list that has been given the ticker owns what is shown of it. Use the ticker no longer than that list:
/// afterwards it has no text, and no list can show it. Deleting it later is fine, deleting it earlier leaves the text
/// on the list.
class DISPLAYAPI_EXPORT Ticker : public Widget {
public:
    /// UTF-8.
    explicit Ticker(std::string text);
    Ticker(const Ticker&) = delete;
    Ticker& operator=(const Ticker&) = delete;
    ~Ticker() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    /// UTF-8. It begins anew.
    void setText(std::string text);

    /// Empty where it has no widget any more.
    std::string getText();

    /// The GUI-thread side; null until it has been made. GUI thread only.
    TickerPrivateIfc* getPrivateImpl() const;

private:
    struct Ops;

    void create(const std::string& text);

    TickerPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
