#pragma once

#include "host/lcd/Lcd.h"
#include "pictures/PictureTest.h"
#include "presentation/PRESCPresentationManager.h"
#include "widgets/KestrelApplication.h"
#include "widgets/SystemWindow.h"

/// What a screen says in one language.
struct Sample {
    const char* locale;
    const char* title;
    std::vector<std::string> rows;
    const char* caption;
    const char* line;
    const char* message;
};

inline const std::vector<Sample> LANGUAGES{
    {"en", "Settings", {"Language", "Ringing tone", "Display"}, "Forwarded to 4711", "2 missed calls", "Saved"},
    {"de",
     "Einstellungen",
     {"Sprache", "Rufton", "Anzeige"},
     "Umgeleitet zu 4711",
     "2 Anrufe in Abwesenheit",
     "Gespeichert"},
    {"fr", "Réglages", {"Langue", "Sonnerie", "Affichage"}, "Renvoyé vers 4711", "2 appels manqués", "Enregistré"},
    {"ar", "الإعدادات", {"اللغة", "نغمة الرنين", "الشاشة"}, "محول إلى 4711", "مكالمتان فائتتان", "تم الحفظ"},
    {"ja", "設定", {"言語", "着信音", "画面"}, "4711へ転送中", "不在着信2件", "保存しました"}};

inline const Sample& ENGLISH = LANGUAGES.front();

/// Status lines, popups and messages on every panel; the picture's name tells which.
class StatusScreens : public PictureTest, public testing::WithParamInterface<host::Variant> {
protected:
    StatusScreens()
    {
        mApplication.setHardwareVariant(isTwoLines() ? 0 : 1);
        start(GetParam());
    }
    ~StatusScreens() override
    {
        mApplication.setLocale(PegString());
        mApplication.setTimeFormat(PegString());
        mApplication.setHardwareVariant(1);
    }

    static bool isTwoLines() { return GetParam() == host::Variant::WP1; }

    void expectScreen(const std::string& screen)
    {
        expectPicture(std::string(host::nameOf(GetParam())) + "-" + screen);
    }

    /// The manager owns it.
    SystemWindow& makeWindow(const Sample& sample, int lines)
    {
        auto* window = new SystemWindow;
        window->setSystemWindowSize(lines);
        window->setSystemWindowText(0, sample.caption);
        window->setSystemWindowText(1, sample.line);
        return *window;
    }

    SystemWindow& showLines(const Sample& sample, int lines)
    {
        SystemWindow& window = makeWindow(sample, lines);
        window.showLine(true);
        window.setTime(14, 5, 0);
        window.showTime(true);
        gpPresent->Add(&window);
        return window;
    }

    SystemWindow& showPopup(const Sample& sample, int lines)
    {
        SystemWindow& window = makeWindow(sample, lines);
        window.setAsPopup(true);
        window.setSystemWindowTop(isTwoLines() ? 0 : 40, !isTwoLines(), false);
        gpPresent->Add(&window);
        return window;
    }

    KestrelListBox& showSample(const Sample& sample)
    {
        mApplication.setLocale(text(sample.locale));
        return showList(sample.title, sample.rows);
    }

    KestrelApplication& mApplication = *KestrelApplication::getCurrentApplication();
};
