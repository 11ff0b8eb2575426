#pragma once

#include "apps/deskphone/Contact.h"

#include <functional>
#include <memory>
#include <vector>

namespace deskphone {

class StateFile;

/// The contacts in a file, for the next run. Safe from any thread.
///
/// Two telephones may have the same file: each has what was there at its begin, and adds its own.
class ContactStore {
public:
    explicit ContactStore(std::shared_ptr<StateFile> file);

    /// The latest first. Where none have ever been kept, `first` says who is there at the beginning, in the same order
    /// and with ids; so it does where there is no file.
    std::vector<Contact> contacts(const std::function<std::vector<Contact>()>& first);

    /// Gives the contact its id, or leaves it at 0 where it is not kept.
    void add(Contact& contact);
    void change(const Contact& contact);
    void forget(ContactId contact);

private:
    std::shared_ptr<StateFile> mFile; ///< never null
};

} // namespace deskphone
