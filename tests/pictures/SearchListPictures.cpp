#include "DisplayAPI/SearchList.h"
#include "DisplayAPI/SearchListBoxPrivateIfc.h"
#include "pictures/StatusScreens.h"

namespace {

using DisplayAPI::SearchList;

/// Search lists as a display shows them.
class SearchListPictures : public StatusScreens {
protected:
    ~SearchListPictures() override
    {
        mList.getPrivateImpl()->gainOwnership();
        gpPresent->Remove(mList.getPrivateImpl()->getWidget());
    }

    SearchList& showList(const char* title, std::initializer_list<const char*> rows)
    {
        PegThing* const box = mList.getPrivateImpl()->getWidget();
        box->Resize({0, 0, static_cast<std::int16_t>(host::Lcd::current()->width() - 1), box->Area().bottom});
        mList.setTitle(title);
        mList.setCountIndicator(10000);
        refill(rows, -1);
        mList.getPrivateImpl()->releaseOwnership();
        gpPresent->Add(box);
        return mList;
    }

    void refill(std::initializer_list<const char*> rows, int matches)
    {
        mList.clear();
        for (const char* row : rows)
            mList.append(row);
        mList.setSearchCountIndicator(matches);
    }

    /// Paints after each, so that what is seen has been reached by partial repaints.
    void pressInList(std::initializer_list<int> keys)
    {
        for (const int key : keys) {
            host::Lcd::current()->paint();
            mList.getPrivateImpl()->getWidget()->Message({.wType = PM_KEY, .iData = key});
        }
    }

    SearchList mList;
};

TEST_P(SearchListPictures, PopupComesWithTheFirstKeyAndGoesAtTheTextsBeginning)
{
    showList("Contacts",
             {"Ada Lovelace", "Bo Diddley", "Cem Özdemir", "Zoë Ångström", "Zsa Zsa Gabor", "Zuzana", "Zyx"});
    expectScreen("search-list");
    pressInList({'9', '9', '9', '9'});
    refill({"Zoë Ångström", "Zsa Zsa Gabor", "Zuzana", "Zyx"}, 4);
    expectScreen("search-list-typed");
    pressInList({'6'});
    refill({}, 0);
    expectScreen("search-list-no-match");
    pressInList({PK_LEFT, PK_LEFT, PK_LEFT});
    expectScreen("search-list-closed");
}

TEST_P(SearchListPictures, ReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    SearchList& list = showList("جهات الاتصال", {"زينب", "زياد"});
    list.setSearchText("زي");
    list.setSearchCountIndicator(2);
    list.showSearchPopup();
    expectScreen("search-list-arabic");
}

INSTANTIATE_TEST_SUITE_P(Panel, SearchListPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });

} // namespace
