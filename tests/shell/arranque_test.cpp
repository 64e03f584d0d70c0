#include "shell/qt/programa.h"
#include "shell/qt/twips.h"
#include "shell/qt/ventanasplash.h"
#include "ventanaprueba.h"

namespace eeprog::prueba {

// A run from its first window: the splash, with the main window made over the fakes.
struct ArranqueTest : VentanaPrueba {
    void SetUp() override {}
    Programa programa{[this] { return crear(); }};
    QPointer<VentanaSplash> splash = programa.frmSplash();
    // The splash has gone and the main window stands.
    bool cerrado() const
    {
        return !(splash && splash->isVisible()) && programa.Form1() && programa.Form1()->isVisible();
    }
};

TEST_F(ArranqueTest, WithNothingGivenTheTimerBringsUpTheMainWindowAndTakesTheSplashAway)
{
    EXPECT_TRUE(QTest::qWaitFor([this] { return cerrado(); }, 3000));
}

// The texts take no click, and a key that gives no character does nothing.
TEST_F(ArranqueTest, OnlyAKeyGivingACharacterClosesTheSplash)
{
    clic(splash->Label1());
    QTest::sendKeyEvent(QTest::Click, splash, Qt::Key_Delete, QStringLiteral("\x7f"), {}); // as X11 gives it
    EXPECT_TRUE(splash && splash->isVisible() && !programa.Form1());
    QTest::keyClick(splash, Qt::Key_A);
    EXPECT_TRUE(cerrado());
}

// The first label is 3135 twips wide from 1320, however long its text in the font at hand;
// the click goes through the window to whatever lies at that point.
TEST_F(ArranqueTest, AClickBesideTheTextsClosesTheSplash)
{
    QTest::mouseClick(splash->windowHandle(), Qt::LeftButton, {}, QPoint(pixeles(4500), pixeles(300)));
    EXPECT_TRUE(cerrado());
}

TEST_F(ArranqueTest, AnOpenAboutBoxOutlivesTheMainWindowAndTheRunEndsWithIt)
{
    QTest::keyClick(splash, Qt::Key_A);
    VentanaForm1* Form1 = programa.Form1();
    Form1->opcionacercade_Click();
    bool cajaenpie = false;
    QTimer::singleShot(0, Form1, [Form1] { Form1->close(); });
    QTimer::singleShot(200, Form1, [&] {
        cajaenpie = Form1->frmAbout() && Form1->frmAbout()->isVisible();
        cajaenpie ? Form1->frmAbout()->cmdOK().click() : void();
    });
    QTimer::singleShot(5000, Form1, [] { QCoreApplication::exit(99); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_TRUE(cajaenpie);
}

// The words of both small windows, in the order they were laid out.
TEST_F(ArranqueTest, TheSplashAndTheAboutBoxSayTheirTexts)
{
    auto textos = [](const QWidget* ventana) {
        QStringList todos{ventana->windowTitle()};
        for (const QWidget* control : ventana->findChildren<QWidget*>()) // labels, '~' when they wrap, and buttons
            todos << (control->property("wordWrap").toBool() ? "~" : "") + control->property("text").toString();
        return todos.join('|').toStdString();
    };
    EXPECT_EQ(textos(splash), "|Programador de Memoria EEPROM AT28C64B |Cargando Espere..........");
    QTest::keyClick(splash, Qt::Key_A);
    programa.Form1()->opcionacercade_Click();
    const std::string acerca = textos(programa.Form1()->frmAbout());
    EXPECT_EQ(acerca.substr(0, acerca.rfind('|') + 3), // the notice is told by its wrap and first letter
              "Acerca del Programador de Varnimo|Aceptar|Ir a Web|Programador de Memorias EEPROM AT28C64B|Vercion 2.0|"
              "~Consulte en ayuda... le mostrara un tutorial grafico muy ameno" +
                  std::string(27, ' ') + "Consulte Ver... elija Circuito o programa le mostrara el circuito a armar" +
                  std::string(16, ' ') +
                  "Consulte mi pagina Web para cualquier duda o mandame un correo electronico|~T");
}

} // namespace eeprog::prueba
