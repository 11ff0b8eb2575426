#include "Cases.h"
#include "Frames.h"
#include "Phone.h"

#include "DisplayAPI/Form.h"
#include "DisplayAPI/SliderItem.h"
#include "DisplayAPI/TextField.h"
#include "host/lcd/Lcd.h"

#include <memory>

namespace bench {

namespace {

constexpr int FIELDS = 200;
constexpr int STEPS = 100;
constexpr int ROUNDS = 20;
constexpr int LETTERS = 10;

/// A form that a worker fills, and which is on the screen then.
class ShownForm {
public:
    ShownForm()
    {
        mForm = std::make_unique<DisplayAPI::Form>(DisplayAPI::Form::HALF_AND_HALF);
        for (int i = 0; i < FIELDS; ++i)
            mForm->append(new DisplayAPI::SliderItem("Field " + std::to_string(i)));
        mPhone.display().setCurrent(mForm.get());
        waitUntilShown();
    }
    ShownForm(const ShownForm&) = delete;
    ShownForm& operator=(const ShownForm&) = delete;
    ~ShownForm() { mPhone.display().setCurrent(nullptr); }

private:
    Phone mPhone;
    std::unique_ptr<DisplayAPI::Form> mForm;
};

/// Milliseconds on a telephone that runs already.
double build()
{
    Phone phone;
    const auto start = Clock::now();
    DisplayAPI::Form form(DisplayAPI::Form::HALF_AND_HALF);
    for (int i = 0; i < FIELDS; ++i)
        form.append(new DisplayAPI::SliderItem("Field " + std::to_string(i)));
    phone.display().setCurrent(&form);
    waitUntilShown();
    const double spent = secondsSince(start) * 1e3;
    phone.display().setCurrent(nullptr);
    return spent;
}

double step()
{
    ShownForm shown;
    return cpuToFrame(STEPS, [](int) { return PK_DOWN; });
}

/// The labels have been painted on the way down.
double stepBack()
{
    ShownForm shown;
    cpuToFrame(STEPS, [](int) { return PK_DOWN; });
    return cpuToFrame(STEPS, [](int) { return PK_UP; });
}

double change()
{
    ShownForm shown;
    return cpuToFrame(STEPS, [](int i) { return i % 2 == 0 ? PK_RIGHT : PK_LEFT; });
}

/// Each text is one that has never been shown: letters are put behind 60 characters.
double typeInto(const char* sixtyCharacters)
{
    Phone phone;
    DisplayAPI::Form form(DisplayAPI::Form::SHORT_LABELS);
    auto* const field = new DisplayAPI::TextField("Name", DisplayAPI::TextField::ICON_NONE, sixtyCharacters,
                                                  DisplayAPI::TextField::TEXT);
    form.append(field);
    phone.display().setCurrent(&form);
    waitUntilShown();
    double spent = 0;
    for (int round = 0; round < ROUNDS; ++round) {
        field->setString(sixtyCharacters + std::to_string(round));
        waitUntilShown();
        spent += cpuToFrame(LETTERS, [](int i) { return static_cast<PegKey>('2' + i % 8); });
    }
    phone.display().setCurrent(nullptr);
    return spent / ROUNDS;
}

double typeLatin()
{
    return typeInto("the quick brown fox jumps over the lazy dog and runs away abc");
}

double typeArabic()
{
    return typeInto("نص حكيم له سر قاطع وذو شأن عظيم مكتوب على ثوب أخضر ومغلف بجلد");
}

} // namespace

std::vector<Case> formCases()
{
    return {{SCREEN, "Form of 200 sliders, built from a worker until shown", "ms", build},
            {SCREEN, "Form of 200 sliders, one step down to a label never shown before", "us CPU", step},
            {SCREEN, "Form of 200 sliders, one step back to finished frame", "us CPU", stepBack},
            {SCREEN, "Form of 200 sliders, key to finished frame", "us CPU", change},
            {SCREEN, "Text field of 60 characters, letter to finished frame", "us CPU", typeLatin},
            {SCREEN, "Text field of 60 Arabic characters, letter to finished frame", "us CPU", typeArabic}};
}

} // namespace bench
