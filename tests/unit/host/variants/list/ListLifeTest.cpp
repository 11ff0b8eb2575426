#include "DisplayAPI/Display.h"
#include "DisplayAPI/ExclusiveList.h"
#include "DisplayAPI/ListItem.h"
#include "host/Phone.h"
#include "utilities/TranslationInfo.h"
#include "utilities/TranslatorIfc.h"
#include "widgets/KestrelApplication.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace DisplayAPI;

namespace {

struct Kind {
    const char* name;
    std::function<std::unique_ptr<List>()> make;
};

const std::vector<Kind> KINDS{
    {"Plain", [] { return std::make_unique<List>(0); }},
    {"WithBack", [] { return std::make_unique<List>(3); }},
    {"Exclusive", [] { return std::make_unique<ExclusiveList>(); }},
};

/// Says the key and how often it has been asked.
class CountingTranslator : public TranslatorIfc {
public:
    std::string translate(const std::string& key) override { return key + std::to_string(++asked); }

    int asked = 0;
};

/// What every kind of list goes through, on the real private sides. The test's thread is the GUI thread.
class ListLifeTest : public testing::TestWithParam<std::tuple<host::Variant, Kind>> {
protected:
    ListLifeTest() { display.show(); }
    ~ListLifeTest() override
    {
        display.setCurrent(nullptr);
        KestrelApplication::getCurrentApplication()->setLocale(PegString());
    }

    /// A list on screen with a translated title and a translated row.
    std::unique_ptr<List> shown()
    {
        auto list = std::get<Kind>(GetParam()).make();
        list->setTitle(&title);
        list->append(&text);
        display.setCurrent(list.get());
        return list;
    }

    void changeLanguage() { display.localeChanged("de"); }

    struct Gui {
        explicit Gui(host::Variant variant)
        {
            host::setVariant(variant);
            Widget::setGuiThreadId();
        }
        ~Gui() { Widget::setGuiThreadId(0); }
    };

    Gui gui{std::get<host::Variant>(GetParam())};
    CountingTranslator translator;
    TranslationInfo title{"Title", nullptr};
    TranslationInfo text{"Row ", &translator};
    Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
};

TEST_P(ListLifeTest, DeletedListHearsOfNoLanguage)
{
    shown().reset();
    changeLanguage();
    EXPECT_EQ(translator.asked, 1);
}

TEST_P(ListLifeTest, ListThatHasNeverHadARowHearsOfNoLanguage)
{
    std::get<Kind>(GetParam()).make().reset();
    changeLanguage();
}

TEST_P(ListLifeTest, RowHearsOfALanguageOnce)
{
    const auto list = shown();
    changeLanguage();
    EXPECT_EQ(list->getItems().front()->getText(), "Row 2");
}

TEST_P(ListLifeTest, ClearedListForgetsItsRowsAndLearnsOfNewOnes)
{
    const auto list = shown();
    list->clear();
    changeLanguage();
    EXPECT_EQ(translator.asked, 1);
    list->append(&text);
    changeLanguage();
    EXPECT_EQ(list->getItems().front()->getText(), "Row 3");
}

TEST_P(ListLifeTest, ListThatIsShownAgainHasTheLanguageOfTheDay)
{
    const auto list = shown();
    const auto other = shown();
    changeLanguage();
    display.setCurrent(list.get());
    EXPECT_EQ(translator.asked, 4);
    display.setCurrent(other.get());
}

INSTANTIATE_TEST_SUITE_P(Panel, ListLifeTest,
                         testing::Combine(testing::Values(host::Variant::PLAIN, host::Variant::NARROW,
                                                          host::Variant::WP1),
                                          testing::ValuesIn(KINDS)),
                         [](const auto& tested) {
                             return std::string(host::nameOf(std::get<0>(tested.param))) +
                                    std::get<1>(tested.param).name;
                         });

} // namespace
