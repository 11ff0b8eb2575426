#pragma once

#include "DisplayAPI/CheckBoxFieldPrivateIfc.h"
#include "DisplayAPI/ItemPrivateIfc.h"

class TranslationInfo;

namespace DisplayAPI {

/// The side of a check-box field, which is empty on purpose: nothing is shown, kept or checked.
class CheckBoxFieldPrivate : public CheckBoxFieldPrivateIfc, public ItemPrivateIfc {
public:
    CheckBoxFieldPrivate(const std::string& label, const std::string& text, Image* image);
    CheckBoxFieldPrivate(TranslationInfo* label, TranslationInfo* text, Image* image);

    Image* getImage() override;
    std::string getString() override;
    bool isChecked() override;
    void swapChecked() override;
    void setChecked(bool on) override;

    PegThing* getWidget() override;
    void releaseOwnership() override;
    void gainOwnership() override;
    void localeChanged(std::string locale) override;
    bool hasOwnership() const { return mOwned; }

private:
    bool mOwned = true;
};

} // namespace DisplayAPI
