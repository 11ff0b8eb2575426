// What a progress popup promises of each of its operations.

#include "DisplayAPI/PopupProgress.h"

#include "unit/src/PopupContract.h"

using namespace DisplayAPI;

namespace {

struct Progresses : test::PopupSubject<PopupProgress> {
    explicit Progresses(bool hasSide) : PopupSubject(hasSide, "PopupProgressPrivate") {}
};

const bool POPUP_PROGRESS_CHECKED =
    test::Contract<Progresses>("PopupProgressContractTest")
        .waits("setText", 2, [](Progresses& p) { p->setText("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setText(\"Ada\")")
        .waits("setTextTranslation", 3, [](Progresses& p) { p->setText(test::ownedText()); })
        .record(Progresses::translation)
        .arrives("setText(\"translated Key\")")
        .waits("setCurrentStageText", 4, [](Progresses& p) { p->setCurrentStageText("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setCurrentStageText(\"Ada\")")
        .waits("setCurrentStageTextTranslation", 5, [](Progresses& p) { p->setCurrentStageText(test::ownedText()); })
        .record(Progresses::translation)
        .arrives("setCurrentStageText(\"translated Key\")")
        .waits("setCurrentActivityText", 6, [](Progresses& p) { p->setCurrentActivityText("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setCurrentActivityText(\"Ada\")")
        .waits("setCurrentActivityTextTranslation", 7,
               [](Progresses& p) { p->setCurrentActivityText(test::ownedText()); })
        .record(Progresses::translation)
        .arrives("setCurrentActivityText(\"translated Key\")")
        .waits("updateProgressBar", 8, [](Progresses& p) { p->updateProgressBar(101); })
        .record({.int1 = 101})
        .arrives("updateProgressBar(101)")
        .waits("setType", 9, [](Progresses& p) { p->setType(static_cast<PopupProgress::InfoType>(77)); })
        .record({.int1 = 77})
        .arrives("setType(77)")
        .waits("show", 10, [](Progresses& p) { p->show(); })
        .arrives("open()")
        .waits("dismiss", 11, [](Progresses& p) { p->dismiss(); })
        .arrives("dismiss()")
        .completes({-1, 12, 99})
        .check();

} // namespace
