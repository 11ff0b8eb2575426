#include "apps/deskphone/ContactForm.h"

#include "DisplayAPI/SelectionField.h"
#include "DisplayAPI/SliderItem.h"
#include "apps/deskphone/ContactBook.h"
#include "apps/deskphone/Telephone.h"
#include "kit/OnGuiThread.h"

#include <algorithm>
#include <utility>

namespace deskphone {

using DisplayAPI::MenuCommand;
using DisplayAPI::SelectionField;
using DisplayAPI::TextField;
using DisplayAPI::kit::onGuiThread;

namespace {

const std::array<std::string, 5> NUMBER_KINDS = {"Number.home", "Number.work", "Number.mobile", "Number.fax",
                                                 "Number.holiday"};
const std::vector<std::string> GROUPS = {"Group.none", "Group.family", "Group.friends", "Group.work"};
const std::vector<std::string> NO_OR_YES = {"Choice.no", "Choice.yes"};

std::string trimmed(const std::string& text)
{
    const std::size_t begin = text.find_first_not_of(' ');
    return begin == text.npos ? std::string() : text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

} // namespace

ContactForm::ContactForm(Telephone& telephone, ContactBook& book)
    : FormScreen(telephone, nullptr, "Menu.new.contact"), mBook(book), mNewTitle(text("Menu.new.contact")),
      mTitle(text("Contact.title")), mKinds(choices({NUMBER_KINDS.begin(), NUMBER_KINDS.end()})),
      mName(addText("Contact.name", TextField::NAME)), mNumbers{addNumber("Contact.number"),
                                                                addNumber("Contact.number.2"),
                                                                addNumber("Contact.number.3")},
      mGroup(addChoice("Contact.group", GROUPS)), mFavourite(addChoice("Contact.favourite", NO_OR_YES)),
      mVolume(addSlider("Contact.volume", Contact::LOUDEST)), mBirthday(addText("Contact.birthday", TextField::DATE))
{
    addCommand("Form.save", [this] { save(); });
    addCommand("Form.cancel", [this] { left(); });
}

ContactForm::NumberFields ContactForm::addNumber(const std::string& label)
{
    TextField& number = addText(label, TextField::TELEPHONE_NUMBER);
    return {number, addChoice("Contact.kind", {})};
}

void ContactForm::begin(Place& from, const Contact& contact)
{
    setParent(&from);
    onGuiThread([&] {
        form().setTitle((contact.id == 0 ? mNewTitle : mTitle).info());
        show(contact);
        form().setSelected(&mName);
        mContact = read();
    });
    mContact.id = contact.id;
    open();
}

void ContactForm::show(const Contact& contact)
{
    mName.setString(contact.name);
    for (std::size_t at = 0; at < mNumbers.size(); ++at)
        show(mNumbers[at], at < contact.numbers.size() ? contact.numbers[at] : ContactNumber());
    mGroup.setSelectionIndex(static_cast<int>(contact.group));
    mFavourite.setSelectionIndex(contact.isFavourite ? 1 : 0);
    mVolume.setValue(std::to_string(contact.volume));
    mBirthday.setString(contact.birthday);
}

/// A word of another language is the user's own.
void ContactForm::show(NumberFields& fields, const ContactNumber& number)
{
    fields.number.setString(number.number);
    fields.kind.clearSelections(nullptr);
    fields.ownKind = nullptr;
    for (MenuCommand* const kind : mKinds)
        fields.kind.appendSelection(kind);
    const auto known = std::ranges::find_if(
        NUMBER_KINDS, [&](const std::string& key) { return telephone().languages().translate(key) == number.kind; });
    if (known == NUMBER_KINDS.end() && !number.kind.empty()) {
        fields.ownKind = std::make_unique<MenuCommand>(number.kind, 0);
        fields.kind.appendSelection(fields.ownKind.get());
    }
    fields.kind.setSelectionIndex(number.kind.empty() ? 0 : static_cast<int>(known - NUMBER_KINDS.begin()));
}

Contact ContactForm::typed()
{
    Contact contact;
    onGuiThread([&] { contact = read(); });
    contact.id = mContact.id;
    return contact;
}

Contact ContactForm::read()
{
    Contact contact{.name = trimmed(mName.getString())};
    for (const NumberFields& fields : mNumbers)
        if (ContactNumber number = read(fields); !number.number.empty())
            contact.numbers.push_back(std::move(number));
    contact.group = static_cast<Contact::Group>(std::max(mGroup.getSelectionIndex(), 0));
    contact.isFavourite = mFavourite.getSelectionIndex() == 1;
    contact.volume = std::stoi("0" + mVolume.getValue());
    contact.birthday = mBirthday.getString();
    return contact;
}

ContactNumber ContactForm::read(const NumberFields& fields)
{
    const auto kind = static_cast<std::size_t>(std::max(fields.kind.getSelectionIndex(), 0));
    return {kind < NUMBER_KINDS.size() ? telephone().languages().translate(NUMBER_KINDS[kind])
                                       : fields.ownKind->getText(),
            trimmed(fields.number.getString())};
}

void ContactForm::save()
{
    Contact contact = typed();
    if (contact.name.empty())
        contact.name = contact.number();
    if (contact.name.empty())
        return tell("Contact.incomplete");
    mBook.keep(contact);
    leave();
    tell("Status.saved");
}

void ContactForm::left()
{
    const bool isChanged = typed() != mContact;
    leave();
    if (isChanged)
        tell("Contact.not.saved");
}

void ContactForm::tell(const std::string& key)
{
    telephone().tell(telephone().languages().translate(key));
}

} // namespace deskphone
