#pragma once

#include "toolkit/PegThing.h"
#include "utilities/ICC.h"
#include "widgets/KestrelListBox.h"
#include "widgets/KestrelListBoxItem.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace test {

/// Rows with a text of one letter each, owned by the test.
class RowsOwner {
public:
    KestrelListBoxItem* make(const std::string& text)
    {
        mRows.push_back(std::make_unique<KestrelListBoxItem>(ICC::fromUTF8toUNICODE(text)));
        return mRows.back().get();
    }

    void append(KestrelListBox& list, const std::string& letters)
    {
        for (char letter : letters)
            list.append(make(std::string(1, letter)));
    }

private:
    std::vector<std::unique_ptr<KestrelListBoxItem>> mRows;
};

inline std::string textOf(const KestrelListBoxItem* item)
{
    return item == nullptr ? "none" : ICC::fromUNICODEtoUTF8(item->DataGet());
}

/// The rows one after the other, the current one in brackets.
inline std::string lettersOf(const KestrelListBox& list)
{
    std::string letters;
    for (int row = 0; row < list.numItems(); ++row) {
        const std::string letter = textOf(list.itemAt(row));
        letters += row == list.currentRow() ? "[" + letter + "]" : letter;
    }
    return letters;
}

/// Notes the messages that it gets: type and number.
class MessageNotes : public PegThing {
public:
    using Notes = std::vector<std::pair<int, int>>;

    int Message(const PegMessage& message) override
    {
        mNotes.emplace_back(message.wType, message.iData);
        return 0;
    }

    Notes take() { return std::exchange(mNotes, {}); }

private:
    Notes mNotes;
};

inline PegMessage keyMessage(int key)
{
    PegMessage message;
    message.wType = PM_KEY;
    message.iData = key;
    return message;
}

} // namespace test
