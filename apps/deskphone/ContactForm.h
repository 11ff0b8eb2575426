#pragma once

#include "apps/deskphone/Contact.h"
#include "apps/deskphone/FormScreen.h"

#include <array>
#include <memory>
#include <vector>

namespace deskphone {

class ContactBook;

/// A contact to fill in, a new one or one that is there. OK keeps it, as the command at the foot does; who goes back
/// keeps nothing.
class ContactForm : public FormScreen {
public:
    ContactForm(Telephone& telephone, ContactBook& book);

    /// Goes back to `from` afterwards. On the threads that answer the user.
    void begin(Place& from, const Contact& contact);

private:
    /// A number, and below it what it is of: one of the usual words, or the user's own.
    struct NumberFields {
        DisplayAPI::TextField& number;
        DisplayAPI::SelectionField& kind;
        std::unique_ptr<DisplayAPI::MenuCommand> ownKind = nullptr;
    };

    void confirmed() override { save(); }
    void left() override;

    NumberFields addNumber(const std::string& label);
    void show(const Contact& contact);
    void show(NumberFields& fields, const ContactNumber& number);
    Contact typed();
    Contact read();
    ContactNumber read(const NumberFields& fields);
    void save();
    void tell(const std::string& key);

    ContactBook& mBook;
    Contact mContact; ///< as it was at first
    Text& mNewTitle;
    Text& mTitle;
    std::vector<DisplayAPI::MenuCommand*> mKinds;
    DisplayAPI::TextField& mName;
    std::array<NumberFields, 3> mNumbers;
    DisplayAPI::SelectionField& mGroup;
    DisplayAPI::SelectionField& mFavourite;
    DisplayAPI::SliderItem& mVolume;
    DisplayAPI::TextField& mBirthday;
};

/// Begins with a new contact each time that it is opened.
class NewContact : public Place {
public:
    NewContact(ContactForm& form, Place& parent) : mForm(form), mParent(parent) {}

    void open() override { mForm.begin(mParent, {}); }
    void stopListening() override {}

private:
    ContactForm& mForm;
    Place& mParent;
};

} // namespace deskphone
