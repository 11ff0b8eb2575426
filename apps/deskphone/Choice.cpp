#include "apps/deskphone/Choice.h"

#include "DisplayAPI/ExclusiveList.h"
#include "apps/deskphone/Telephone.h"

namespace deskphone {

Choice::Choice(Telephone& telephone, Place* parent, const std::string& name, const std::vector<std::string>& values,
               Values kind, Effect effect)
    : Screen(telephone, parent, name + ".title", std::make_unique<DisplayAPI::ExclusiveList>()),
      mSummary(text(name, {[this] { return chosenValue(); }})), mSaved(text("Status.saved")), mEffect(std::move(effect))
{
    for (const std::string& value : values)
        mValues.emplace_back(kind == Values::TRANSLATED ? &telephone.languages() : nullptr, value);
}

/// There may be none: without catalogues there is no language.
std::string Choice::chosenValue()
{
    return mChosen < mValues.size() ? mValues[mChosen].get() : std::string();
}

void Choice::build()
{
    for (Text& value : mValues)
        append(value);
    list().setSelectedIndex(static_cast<int>(mChosen));
}

void Choice::chosen(int row)
{
    const std::string complaint = mEffect(static_cast<std::size_t>(row));
    if (complaint.empty())
        accept(static_cast<std::size_t>(row));
    else
        left();
    parent()->open();
    telephone().tell(complaint.empty() ? mSaved.get() : complaint);
}

void Choice::accept(std::size_t value)
{
    mChosen = value;
    mListener();
}

void Choice::left()
{
    list().setSelectedIndex(static_cast<int>(mChosen));
}

} // namespace deskphone
