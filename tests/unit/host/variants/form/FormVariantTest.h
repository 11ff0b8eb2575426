#pragma once

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayEventIfc.h"
#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayAPI/Form.h"
#include "DisplayAPI/PopupNotification.h"
#include "doubles/Mocks.h"
#include "host/Phone.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/Dictionary.h"
#include "support/VirtualTime.h"
#include "unit/host/variants/OnPanel.h"
#include "unit/host/variants/Told.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace test {

/// A form on the screen, on the real private sides. The test's thread is the GUI thread.
class FormVariantTest : public testing::TestWithParam<host::Variant> {
protected:
    FormVariantTest()
    {
        ON_CALL(listener, postCommandAction).WillByDefault([this](DisplayAPI::Command* command, auto* shown) {
            EXPECT_EQ(shown, form.get());
            raised.push_back(nameOf(command));
        });
        form->addCommandListener(&listener);
        display.show();
    }

    ~FormVariantTest() override
    {
        display.setCurrent(nullptr);
        KestrelApplication::getCurrentApplication()->setLocale(PegString());
    }

    static bool isSmall() { return GetParam() == host::Variant::WP1; }

    static std::string nameOf(DisplayAPI::Command* command)
    {
        using DisplayAPI::Form;
        const std::vector<std::pair<DisplayAPI::Command*, const char*>> names{
            {Form::CURRENT_ITEM_CHANGED_COMMAND(), "current"},
            {Form::CLIPBOARD_CHANGED_COMMAND(), "clipboard"},
            {Form::SELECTION_CHANGED_COMMAND(), "changed"},
            {Form::SELECTION_DISPLAY_COMMAND(), "choices"},
            {Form::SAVE_COMMAND(), "save"},
            {Form::OK_COMMAND(), "ok"},
            {Form::BACK_COMMAND(), "back"}};
        for (const auto& [known, name] : names)
            if (known == command)
                return name;
        return command->getBasicText();
    }

    void open() { display.setCurrent(form.get()); }
    std::string shown() { return form->getPrivateImpl()->serialise(); }

    /// To whoever has the focus.
    static void press(int key) { gpPresent->Focus()->Message({.wType = PM_KEY, .iData = key}); }

    static void release(int key) { gpPresent->Focus()->Message({.wType = PM_KEYRELEASE, .iData = key}); }

    void press(std::initializer_list<int> keys)
    {
        for (const int key : keys)
            press(key);
    }

    void changeLanguage(const char* language)
    {
        dictionary.language = std::string(language) + ":";
        display.localeChanged(language);
    }

    int changesBy(const std::function<void()>& work) { return test::changesBy(display, work); }

    /// The form's end comes when whoever observes the screen is told of what is done.
    void deleteFormWhenTold(const std::function<void()>& work)
    {
        struct Deleting : DisplayAPI::DisplayEventIfc {
            explicit Deleting(std::unique_ptr<DisplayAPI::Form>& doomed) : mForm(doomed) {}
            void displayChanged(std::string) override { mForm.reset(); }

        private:
            std::unique_ptr<DisplayAPI::Form>& mForm;
        } observer(form);
        display.subscribe(&observer);
        work();
        display.unSubscribe();
    }

    /// The form's end comes when it raises the command.
    void deleteFormAt(const std::string& name)
    {
        ON_CALL(listener, postCommandAction).WillByDefault([this, name](DisplayAPI::Command* command, auto*) {
            raised.push_back(nameOf(command));
            if (raised.back() == name)
                form.reset();
        });
    }

    /// A field as the screen's text has it.
    static std::string item(const std::string& label, const std::string& value)
    {
        return "subitem:\nname:FormItem\nstring0:" + label + "\nstring1:" + value + "\nendsubitem:\n";
    }

    static std::string asText(const std::string& contents) { return "object:\nname:Form\n" + contents + "end:\n"; }

    VirtualTime time;
    OnPanel gui{GetParam()};
    DisplayAPI::Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    Dictionary dictionary;
    testing::NiceMock<doubles::MockCommandListener> listener;
    std::vector<std::string> raised;
    std::unique_ptr<DisplayAPI::Form> form = std::make_unique<DisplayAPI::Form>(DisplayAPI::Form::HALF_AND_HALF);
};

} // namespace test
