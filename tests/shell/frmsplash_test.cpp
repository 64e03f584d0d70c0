#include "shell/frmsplash.h"

#include <gtest/gtest.h>

namespace eeprog {
namespace {

struct ArranqueFalso : Arranque {
    std::string pasos;
    void mostrarForm1() override { pasos += "mostrar "; }
    void descargar() override { pasos += "descargar "; }
};

// The main window comes at the first tick and the splash goes at the fourth. Before the first
// tick, a key or a click is what brings the main window up, after the splash has gone.
TEST(FrmSplashTest, TheTicksOrAKeyOrAClickCloseTheSplashAndShowTheMainWindow)
{
    ArranqueFalso arranque;
    FrmSplash splash(arranque);
    splash.Form_Load();
    for (const char* tras : {"mostrar ", "mostrar ", "mostrar ", "mostrar descargar "}) {
        splash.Timer1_Timer();
        EXPECT_EQ(arranque.pasos, tras) << "tick " << splash.cuentaticks();
    }
    for (auto [nombre, dar] : {std::pair{"key", &FrmSplash::Form_KeyPress}, {"click", &FrmSplash::Form_MouseUp}}) {
        ArranqueFalso otro;
        FrmSplash nuevo(otro);
        nuevo.Form_Load();
        (nuevo.*dar)();
        EXPECT_EQ(otro.pasos, "descargar mostrar ") << nombre;
    }
}

} // namespace
} // namespace eeprog
