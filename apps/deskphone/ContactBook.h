#pragma once

#include "apps/deskphone/Contact.h"
#include "apps/deskphone/ContactIndex.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace deskphone {

class ContactStore;

/// Everybody whom the user knows. Safe from any thread; whoever asks first waits until all are there.
class ContactBook {
public:
    /// Those that the store has, which keeps what becomes of them; without one those of the phone book.
    explicit ContactBook(std::unique_ptr<ContactStore> store);
    ContactBook(const ContactBook&) = delete;
    ContactBook& operator=(const ContactBook&) = delete;
    ~ContactBook();

    /// The latest first.
    std::vector<Contact> all() const;
    std::size_t size() const;

    /// Nothing where there is none.
    std::optional<Contact> find(ContactId id) const;

    /// Who has the number, however it is written; the latest of several.
    std::optional<Contact> withNumber(const std::string& number) const;

    struct Found {
        std::vector<Contact> best;
        std::size_t count = 0;
    };

    /// As ContactIndex::find() says.
    Found search(const std::string& typed, std::size_t most) const;

    /// Keeps a contact, a new one where it has no id. Returns it with its id.
    Contact keep(Contact contact);
    void forget(ContactId id);

    /// `listener` is called with each contact that comes, changes or goes, on the thread that brings it about. Before
    /// there are such.
    void addListener(std::function<void(ContactId)> listener) { mListeners.push_back(std::move(listener)); }

private:
    void loadOnce() const;
    void load() const;
    void put(const Contact& contact) const;
    void takeOut(ContactId id);

    std::unique_ptr<ContactStore> mStore; ///< null where nothing is kept
    std::vector<std::function<void(ContactId)>> mListeners;
    mutable std::once_flag mIsLoaded;
    std::mutex mChanges;       ///< one change after the other, here and in the file; before mMutex
    mutable std::mutex mMutex; ///< guards what follows; a leaf: who calls is looked up while the file is written
    mutable std::map<ContactId, Contact, std::greater<>> mContacts;
    mutable std::unordered_multimap<std::string, ContactId> mByNumber;
    mutable ContactIndex mIndex;
};

} // namespace deskphone
