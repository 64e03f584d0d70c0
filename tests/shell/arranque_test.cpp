#include "aplicacion.h"
#include "dialogofalso.h"
#include "pantallafalsa.h"
#include "placa.h"
#include "puertoplaca.h"
#include "shell/qt/programa.h"
#include "shell/qt/twips.h"
#include "shell/qt/ventanasplash.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace eeprog {
namespace {

using namespace prueba;

// A run from its first window: the splash, with the main window made over fakes.
class ArranqueTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { crearaplicacion(); }

    Programa::Creador creador()
    {
        return [this] {
            ++creadas;
            return std::make_unique<VentanaForm1>(
                Dependencias{std::make_unique<PuertoPlaca>(placa), std::make_unique<AvisosFalsos>(),
                             std::make_unique<RelojFijo>(), std::make_unique<DialogoFalso>()});
        };
    }

    static bool visible(const VentanaForm1* ventana) { return ventana && ventana->isVisible(); }

    Placa placa;
    int creadas = 0;
};

TEST_F(ArranqueTest, WithNothingGivenTheMainWindowComesAtTheFirstTickAndTheSplashGoesAtTheFourth)
{
    Programa programa(creador());
    QPointer<VentanaSplash> splash = programa.frmSplash();
    ASSERT_TRUE(splash && splash->isVisible());
    EXPECT_EQ(programa.Form1(), nullptr);
    EXPECT_EQ(splash->Label1().text(), "Programador de Memoria EEPROM AT28C64B ");
    EXPECT_EQ(splash->Label2().text(), "Cargando Espere..........");

    ASSERT_TRUE(QTest::qWaitFor([&] { return programa.Form1() != nullptr; }, 2000));
    EXPECT_TRUE(visible(programa.Form1()));
    EXPECT_TRUE(splash);
    EXPECT_EQ(splash->logica().cuentaticks(), 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return splash.isNull(); }, 3000));
    EXPECT_EQ(creadas, 1);
    EXPECT_TRUE(visible(programa.Form1()));
}

// A click on the texts does nothing, nor does a key that gives no character; a key that
// gives one makes the splash go, and then brings the main window up; no tick comes any more.
TEST_F(ArranqueTest, AKeyBeforeTheFirstTickClosesTheSplashAndThenBringsUpTheMainWindow)
{
    Programa programa(creador());
    QPointer<VentanaSplash> splash = programa.frmSplash();
    QTest::mouseClick(&splash->Label1(), Qt::LeftButton);
    QTest::sendKeyEvent(QTest::Click, splash, Qt::Key_Delete, QStringLiteral("\x7f"), {}); // as X11 gives it
    EXPECT_TRUE(splash && splash->isVisible());
    EXPECT_EQ(programa.Form1(), nullptr);

    QTest::keyClick(splash, Qt::Key_A);
    EXPECT_FALSE(splash && splash->isVisible());
    EXPECT_TRUE(visible(programa.Form1()));
    QTest::qWait(4 * FrmSplash::intervalo + 200);
    EXPECT_TRUE(splash.isNull());
    EXPECT_EQ(creadas, 1);
}

// The first label is 3135 twips wide from 1320, however long its text in the font at hand.
TEST_F(ArranqueTest, AClickBesideTheTextsClosesTheSplash)
{
    Programa programa(creador());
    QPointer<VentanaSplash> splash = programa.frmSplash();
    // Through the window, so the click goes to whatever lies at that point.
    QTest::mouseClick(splash->windowHandle(), Qt::LeftButton, {}, QPoint(pixeles(4500), pixeles(300)));
    EXPECT_FALSE(splash && splash->isVisible());
    EXPECT_TRUE(visible(programa.Form1()));
}

// Closing the main window leaves an open about box standing; the run ends when that box
// is closed in turn.
TEST_F(ArranqueTest, AnOpenAboutBoxOutlivesTheMainWindowAndTheRunEndsWithIt)
{
    Programa programa(creador());
    QTest::keyClick(programa.frmSplash(), Qt::Key_A);
    VentanaForm1* Form1 = programa.Form1();
    ASSERT_NE(Form1, nullptr);
    Form1->opcionacercade_Click();
    bool cajaenpie = false;
    bool agotado = false;
    QTimer::singleShot(0, Form1, [Form1] { Form1->close(); });
    QTimer::singleShot(200, Form1, [&] {
        cajaenpie = Form1->frmAbout() && Form1->frmAbout()->isVisible();
        if (Form1->frmAbout())
            Form1->frmAbout()->cmdOK().click();
    });
    QTimer::singleShot(5000, [&] {
        agotado = true;
        QCoreApplication::exit(99);
    });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_TRUE(cajaenpie);
    EXPECT_FALSE(agotado);
}

} // namespace
} // namespace eeprog
