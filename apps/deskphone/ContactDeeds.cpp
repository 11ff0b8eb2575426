#include "apps/deskphone/ContactDeeds.h"

#include "apps/deskphone/CallScreen.h"
#include "apps/deskphone/ContactBook.h"
#include "apps/deskphone/ContactForm.h"
#include "apps/deskphone/Telephone.h"

#include <utility>

namespace deskphone {

std::vector<RowMenu::Action> ContactDeeds::actions(const Contact& chosen, Place& from,
                                                   std::function<void()> showDetails) const
{
    return {{"Row.call", [*this, &chosen, &from] { call.begin(from, chosen.name, chosen.number()); }},
            {"Row.details", std::move(showDetails)},
            {"Row.edit", [*this, &chosen, &from] { form.begin(from, chosen); }},
            {"Row.copy", [*this, &chosen] { telephone.copy(chosen.number()); }},
            {"Row.delete", [*this, &chosen] { book.forget(chosen.id); }},
            {"Menu.new.contact", [*this, &from] { form.begin(from, {}); }}};
}

} // namespace deskphone
