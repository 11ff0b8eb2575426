#include "apps/deskphone/ContactBook.h"

#include "apps/deskphone/ContactStore.h"
#include "apps/deskphone/PhoneBook.h"

#include <algorithm>
#include <utility>

namespace deskphone {

namespace {

/// Above whatever a file counts to.
constexpr ContactId FIRST_UNKEPT = ContactId(1) << 40;

std::vector<Contact> phoneBook()
{
    std::vector<Contact> all;
    all.reserve(static_cast<std::size_t>(PhoneBook::size()));
    for (int entry = 0; entry < PhoneBook::size(); ++entry)
        all.push_back({.name = PhoneBook::name(entry),
                       .numbers = {{PhoneBook::kind(entry), PhoneBook::number(entry)}},
                       .id = PhoneBook::size() - entry});
    return all;
}

} // namespace

ContactBook::ContactBook(std::unique_ptr<ContactStore> store) : mStore(std::move(store)) {}

ContactBook::~ContactBook() = default;

void ContactBook::loadOnce() const
{
    std::call_once(mIsLoaded, [this] { load(); });
}

void ContactBook::load() const
{
    const std::vector<Contact> all = mStore != nullptr ? mStore->contacts(phoneBook) : phoneBook();
    const std::lock_guard lock(mMutex);
    mByNumber.reserve(all.size());
    for (const Contact& contact : all)
        put(contact);
}

void ContactBook::put(const Contact& contact) const
{
    for (const ContactNumber& number : contact.numbers)
        mByNumber.emplace(digitsOf(number.number), contact.id);
    mContacts.insert_or_assign(contact.id, contact);
    mIndex.put(contact);
}

void ContactBook::takeOut(ContactId id)
{
    const auto found = mContacts.find(id);
    if (found == mContacts.end())
        return;
    for (const ContactNumber& number : found->second.numbers) {
        const auto [begin, end] = mByNumber.equal_range(digitsOf(number.number));
        const auto own = std::find_if(begin, end, [id](const auto& entry) { return entry.second == id; });
        if (own != end)
            mByNumber.erase(own);
    }
    mContacts.erase(found);
    mIndex.remove(id);
}

std::vector<Contact> ContactBook::all() const
{
    loadOnce();
    const std::lock_guard lock(mMutex);
    std::vector<Contact> all;
    all.reserve(mContacts.size());
    for (const auto& [id, contact] : mContacts)
        all.push_back(contact);
    return all;
}

std::size_t ContactBook::size() const
{
    loadOnce();
    const std::lock_guard lock(mMutex);
    return mContacts.size();
}

std::optional<Contact> ContactBook::find(ContactId id) const
{
    loadOnce();
    const std::lock_guard lock(mMutex);
    const auto found = mContacts.find(id);
    return found != mContacts.end() ? std::optional(found->second) : std::nullopt;
}

std::optional<Contact> ContactBook::withNumber(const std::string& number) const
{
    loadOnce();
    const std::lock_guard lock(mMutex);
    const auto [begin, end] = mByNumber.equal_range(digitsOf(number));
    const auto latest = std::max_element(begin, end, [](const auto& a, const auto& b) { return a.second < b.second; });
    return latest != end ? std::optional(mContacts.at(latest->second)) : std::nullopt;
}

ContactBook::Found ContactBook::search(const std::string& typed, std::size_t most) const
{
    loadOnce();
    const std::lock_guard lock(mMutex);
    const ContactIndex::Found found = mIndex.find(typed, most);
    Found result{.best = {}, .count = found.count};
    for (const ContactId id : found.best)
        result.best.push_back(mContacts.at(id));
    return result;
}

Contact ContactBook::keep(Contact contact)
{
    loadOnce();
    {
        const std::lock_guard inOrder(mChanges);
        if (mStore != nullptr && contact.id == 0)
            mStore->add(contact);
        else if (mStore != nullptr)
            mStore->change(contact);
        const std::lock_guard lock(mMutex);
        if (contact.id == 0)
            contact.id = mContacts.empty() ? FIRST_UNKEPT : std::max(FIRST_UNKEPT, mContacts.begin()->first + 1);
        takeOut(contact.id);
        put(contact);
    }
    for (const auto& listener : mListeners)
        listener(contact.id);
    return contact;
}

void ContactBook::forget(ContactId id)
{
    loadOnce();
    {
        const std::lock_guard inOrder(mChanges);
        if (mStore != nullptr)
            mStore->forget(id);
        const std::lock_guard lock(mMutex);
        takeOut(id);
    }
    for (const auto& listener : mListeners)
        listener(id);
}

} // namespace deskphone
