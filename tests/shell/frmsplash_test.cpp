#include "shell/frmsplash.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace eeprog {
namespace {

class ArranqueFalso : public Arranque {
public:
    std::vector<std::string> pasos;
    void mostrarForm1() override { pasos.emplace_back("mostrar Form1"); }
    void descargar() override { pasos.emplace_back("descargar"); }
};

using Pasos = std::vector<std::string>;

TEST(FrmSplashTest, WithNothingGivenTheMainWindowComesAtTheFirstTickAndTheSplashGoesAtTheFourth)
{
    ArranqueFalso arranque;
    FrmSplash splash(arranque);
    splash.Form_Load();
    splash.Timer1_Timer();
    EXPECT_EQ(arranque.pasos, Pasos{"mostrar Form1"});
    splash.Timer1_Timer();
    splash.Timer1_Timer();
    EXPECT_EQ(arranque.pasos, Pasos{"mostrar Form1"});
    splash.Timer1_Timer();
    EXPECT_EQ(arranque.pasos, (Pasos{"mostrar Form1", "descargar"}));
    EXPECT_EQ(splash.cuentaticks(), 4);
}

// Before the first tick the key is what brings the main window up, after the splash has gone.
TEST(FrmSplashTest, AKeyOrAClickClosesTheSplashFirstAndThenShowsTheMainWindow)
{
    for (auto dar : {&FrmSplash::Form_KeyPress, &FrmSplash::Form_MouseUp}) {
        ArranqueFalso arranque;
        FrmSplash splash(arranque);
        splash.Form_Load();
        (splash.*dar)();
        EXPECT_EQ(arranque.pasos, (Pasos{"descargar", "mostrar Form1"}));
    }
}

} // namespace
} // namespace eeprog
