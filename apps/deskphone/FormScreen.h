#pragma once

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Form.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/TextField.h"
#include "apps/deskphone/Ear.h"
#include "apps/deskphone/Place.h"
#include "kit/Text.h"

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace DisplayAPI {
class SelectionField;
class SliderItem;
} // namespace DisplayAPI

namespace deskphone {

using DisplayAPI::kit::Text;

class Telephone;

/// A screen of fields to fill in. It keeps what stands in them: whoever comes back finds it as he has left it.
///
/// Make and delete forms on the GUI thread. They answer the user on a thread of the library's.
class FormScreen : public Place {
public:
    /// `title` is the key of a text.
    FormScreen(Telephone& telephone, Place* parent, const std::string& title);
    ~FormScreen() override;

    void open() override;
    void stopListening() override;

protected:
    Telephone& telephone() { return mTelephone; }
    DisplayAPI::Form& form() { return mForm; }
    void setParent(Place* parent) { mParent = parent; }

    /// Texts live as long as the form.
    Text& text(const std::string& key, std::vector<Text::Argument> arguments = {});

    // Fields go to the form's end; the form owns them. In the constructor. Labels are keys of texts.
    DisplayAPI::TextField& addText(const std::string& label, DisplayAPI::TextField::FieldType type);
    DisplayAPI::SliderItem& addSlider(const std::string& label, int most);

    /// With these to choose from, of which the first is chosen.
    DisplayAPI::SelectionField& addChoice(const std::string& label, const std::vector<std::string>& texts);

    /// The same with words of no language.
    DisplayAPI::SelectionField& addChoiceOfNames(const std::string& label, const std::vector<std::string>& names);

    /// Something to choose, which lives as long as the form.
    std::vector<DisplayAPI::MenuCommand*> choices(const std::vector<std::string>& texts);

    /// A soft key. In the constructor.
    void addCommand(const std::string& key, std::function<void()> run);

    /// Goes back to where the user has come from.
    void leave();

private:
    /// The user has changed a value.
    virtual void changed() {}

    /// He presses OK where nothing else comes of it.
    virtual void confirmed() {}

    /// He goes back.
    virtual void left() { leave(); }

    DisplayAPI::SelectionField& appendChoice(const std::string& label,
                                             const std::vector<DisplayAPI::MenuCommand*>& all);
    void answer(DisplayAPI::Command* command);
    TranslationInfo* translated(const std::string& key);

    struct SoftKey {
        SoftKey(TranslationInfo* label, std::function<void()> action)
            : command(label, DisplayAPI::Command::SAVE), run(std::move(action))
        {
        }

        DisplayAPI::Command command;
        std::function<void()> run;
    };

    Telephone& mTelephone;
    Place* mParent;
    std::deque<Text> mTexts; ///< before the form, which shows them
    std::deque<DisplayAPI::MenuCommand> mChoices;
    std::deque<SoftKey> mSoftKeys;
    Ear mEar; ///< before the form that it hears
    DisplayAPI::Form mForm;
};

} // namespace deskphone
