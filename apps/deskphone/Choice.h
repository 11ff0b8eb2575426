#pragma once

#include "apps/deskphone/Screen.h"

#include <functional>
#include <vector>

namespace deskphone {

/// A setting with its possible values, of which one is chosen.
class Choice : public Screen {
public:
    Choice(DisplayAPI::Display& display, Screen* parent, const std::string& title, std::vector<std::string> values);

    /// "Ring tone: Classic"
    std::string summary() const;

    /// Called when the user has chosen a value, before the parent is shown again.
    void setListener(std::function<void()> listener) { mListener = std::move(listener); }

private:
    void build() override;
    void chosen(int row) override;

    /// A value that was only looked at is not chosen.
    void left() override;

    std::string mTitle;
    std::vector<std::string> mValues;
    std::size_t mChosen = 0;
    std::function<void()> mListener;
};

} // namespace deskphone
