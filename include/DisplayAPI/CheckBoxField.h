#pragma once

#include "DisplayAPI/Item.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CheckBoxFieldPrivate;
class Image;

/// An item of a form that would show a box with a text. This telephone shows none: it takes no room, is never checked,
/// and has neither text nor image.
///
/// Threads: safe from any thread. Off the GUI thread everything waits but setReadOnly() and isReadOnly(), which
/// run where they are called. A request that nobody knows is completed without effect.
/// Ownership: as for Form; nothing that it is given is kept.
class DISPLAYAPI_EXPORT CheckBoxField : public Item {
public:
    CheckBoxField(TranslationInfo* label, TranslationInfo* text, Image* image);
    CheckBoxField(std::string label, std::string text, Image* image);
    CheckBoxField(const CheckBoxField&) = delete;
    CheckBoxField& operator=(const CheckBoxField&) = delete;
    ~CheckBoxField() override;

    /// GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;

    /// Does nothing, and false.
    void setReadOnly(bool readOnly) override;
    bool isReadOnly() override;

    /// Both are GUI thread only; a new language makes no difference.
    ItemPrivateIfc* getPrivateImpl() override;
    void localeChanged(std::string locale) override;

    /// Null, empty and false.
    Image* getImage();
    std::string getString();
    bool isChecked();

    /// Without effect.
    void swapChecked();
    void setChecked(bool on);

private:
    struct Ops;

    void create(const std::string& label, const std::string& text, Image* image);
    void createTranslated(TranslationInfo* label, TranslationInfo* text, Image* image);

    CheckBoxFieldPrivate* mImplementation = nullptr;
};

} // namespace DisplayAPI
