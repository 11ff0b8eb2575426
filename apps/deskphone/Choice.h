#pragma once

#include "apps/deskphone/Screen.h"

#include <atomic>
#include <functional>
#include <vector>

namespace deskphone {

/// A setting with its possible values, of which one is chosen.
class Choice : public Screen {
public:
    /// How the values are told from each other.
    enum class Values { TRANSLATED, AS_THEY_ARE };

    /// What a chosen value brings about; returns the sentence that says why it cannot be chosen, or nothing.
    using Effect = std::function<std::string(std::size_t)>;

    /// `name` is the key of the setting's text, "Ring tone: %1", and with ".title" behind it that of its title.
    Choice(Telephone& telephone, Place* parent, const std::string& name, const std::vector<std::string>& values,
           Values kind, Effect effect);

    /// "Ring tone: Classic"
    Text& summary() { return mSummary; }

    /// What is chosen at first. REQUIRES: before the first open().
    void setChosen(std::size_t value) { mChosen = value; }

    /// Called when the user has chosen a value, before the parent is shown again.
    void setListener(std::function<void()> listener) { mListener = std::move(listener); }

private:
    void build() override;
    void chosen(int row) override;

    /// A value that was only looked at is not chosen.
    void left() override;

    std::string chosenValue();
    void accept(std::size_t value);

    std::deque<Text> mValues;
    std::atomic<std::size_t> mChosen{0};
    Text& mSummary;
    Text& mSaved;
    Effect mEffect;
    std::function<void()> mListener;
};

} // namespace deskphone
