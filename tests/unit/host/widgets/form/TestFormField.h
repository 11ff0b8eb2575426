#pragma once

#include "host/widgets/form/FormField.h"
#include "support/Keys.h"

#include <string>
#include <utility>

namespace test {

/// A field of a form with a digit for its value, which the user types.
class TestFormField : public host::FormField {
public:
    explicit TestFormField(const std::string& label, bool takes = true) : mTakesFocus(takes) { setLabel(peg(label)); }

    PegString value() const override { return mValue; }
    bool takesFocus() const override { return mTakesFocus; }

    bool key(int key) override
    {
        if (isLocked() || key < PK_0 || key > PK_9)
            return false;
        mValue = peg(std::string(1, static_cast<char>(key)));
        Invalidate();
        tellValueChanged();
        return true;
    }

    void showChoices() { holder()->choicesShown(*this); }

private:
    PegString mValue = peg("0");
    const bool mTakesFocus;
};

} // namespace test
