#include "aplicacion.h"
#include "dialogofalso.h"
#include "pantallafalsa.h"
#include "placa.h"
#include "puertoplaca.h"
#include "shell/aplicarskin.h"
#include "shell/qt/botonimagen.h"
#include "shell/qt/cajainforme.h"
#include "shell/qt/rejillas.h"
#include "shell/qt/twips.h"
#include "shell/qt/ventanaform1.h"
#include "shell/qt/vistacaja.h"
#include "shell/qt/vistarejilla.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QTest>

#include <gtest/gtest.h>

namespace eeprog {
namespace {

using namespace prueba;

class TimbreFalso : public Timbre {
public:
    int pitidos = 0;
    void Beep() override { ++pitidos; }
};

// The cell editors in the real window, driven by real key and mouse events.
class EdicionTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { crearaplicacion(); }

    EdicionTest()
    {
        auto timbre = std::make_unique<TimbreFalso>();
        timbre_ = timbre.get();
        ventana = std::make_unique<VentanaForm1>(
            Dependencias{std::make_unique<PuertoPlaca>(placa), std::make_unique<AvisosFalsos>(),
                         std::make_unique<RelojFijo>(), std::make_unique<DialogoFalso>(), std::move(timbre)});
        ventana->show();
        ventana->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    }

    Cuadriculas& c() { return ventana->cuadriculas(); }
    VistaRejilla& vista(const Rejilla& r)
    {
        Rejillas& todas = ventana->rejillas();
        return &r == &c().fghex ? todas.fghex() : todas.fgascii();
    }
    QPoint centro(const Rejilla& r, int fila, int columna)
    {
        VistaRejilla& v = vista(r);
        return v.viewport()->mapFromParent(v.rectangulocelda(fila, columna).center());
    }
    void clic(const Rejilla& r, int fila, int columna)
    {
        QTest::mouseClick(vista(r).viewport(), Qt::LeftButton, {}, centro(r, fila, columna));
    }
    void teclas(VistaCaja& caja, const char* texto)
    {
        for (const char* c = texto; *c != '\0'; ++c)
            QTest::keyClick(&caja, *c);
    }
    void editar() { QTest::mouseClick(&ventana->boton(6), Qt::LeftButton); }
    // The box stands over the grid's current cell.
    void sobre(const VistaCaja& caja, const Rejilla& r)
    {
        const QPoint celda =
            vista(r).mapTo(ventana->centralWidget(), vista(r).rectangulocelda(r.Row(), r.Col()).center());
        EXPECT_TRUE(caja.geometry().contains(celda)) << r.Row() << "," << r.Col();
    }

    Placa placa;
    TimbreFalso* timbre_ = nullptr;
    std::unique_ptr<VentanaForm1> ventana;
};

TEST_F(EdicionTest, TwoDigitsStoreAByteAndTheBoxRunsOnToTheNextRow)
{
    c().fghex.TextMatrix(3, 0, "7A");
    editar();
    VistaCaja& caja = ventana->HEXcelda();
    clic(c().fghex, 2, 15);
    ASSERT_TRUE(caja.isVisible());
    EXPECT_EQ(caja.Text(), "FF");
    EXPECT_TRUE(caja.hasFocus());
    QTest::keyClick(&caja, '4');
    EXPECT_EQ(caja.Text(), "4");
    EXPECT_EQ(c().fghex.TextMatrix(2, 15), "FF") << "one digit stores nothing yet";
    QTest::keyClick(&caja, '1');
    EXPECT_EQ(c().fghex.TextMatrix(2, 15), "41");
    EXPECT_EQ(c().fgascii.TextMatrix(2, 15), "A");
    EXPECT_EQ(ventana->logica().edicion().filaeditada, 2);
    EXPECT_EQ(caja.Text(), "7A");
    EXPECT_EQ(c().fghex.Row(), 3);
    EXPECT_EQ(c().fghex.Col(), 0);
    sobre(caja, c().fghex);
    EXPECT_EQ(caja.cursorPosition(), 0);
    EXPECT_EQ(caja.palette().color(QPalette::Base), QColor(0, 255, 0));
}

TEST_F(EdicionTest, KeysThatAreNoUppercaseHexDigitBeepAndChangeNothing)
{
    editar();
    VistaCaja& caja = ventana->HEXcelda();
    clic(c().fghex, 1, 1);
    QTest::keyClick(&caja, '4');
    for (Qt::Key tecla : {Qt::Key_A, Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Space})
        QTest::keyClick(&caja, tecla);
    EXPECT_EQ(timbre_->pitidos, 4);
    EXPECT_EQ(caja.Text(), "4");
    EXPECT_EQ(ventana->logica().edicion().cuentadigitos, 1);
    QTest::keyClick(&caja, 'B');
    EXPECT_EQ(c().fghex.TextMatrix(1, 1), "4B");
}

TEST_F(EdicionTest, APendingDigitSurvivesAMoveAndTheSecondStoresWhereTheGridIsNow)
{
    editar();
    VistaCaja& caja = ventana->HEXcelda();
    clic(c().fghex, 0, 0);
    QTest::keyClick(&caja, '4');
    clic(c().fghex, 5, 5);
    EXPECT_EQ(caja.Text(), "FF");
    QTest::keyClick(&caja, '1');
    EXPECT_EQ(c().fghex.TextMatrix(5, 5), "41");
    EXPECT_EQ(c().fghex.TextMatrix(0, 0), "FF");
}

TEST_F(EdicionTest, ADragStoresAtItsFarEndWhileTheBoxStandsWhereItBegan)
{
    editar();
    VistaCaja& caja = ventana->HEXcelda();
    QTest::mousePress(vista(c().fghex).viewport(), Qt::LeftButton, {}, centro(c().fghex, 1, 1));
    QTest::mouseMove(vista(c().fghex).viewport(), centro(c().fghex, 1, 5));
    QTest::mouseRelease(vista(c().fghex).viewport(), Qt::LeftButton, {}, centro(c().fghex, 1, 5));
    sobre(caja, c().fghex);
    teclas(caja, "AB");
    EXPECT_EQ(c().fghex.TextMatrix(1, 5), "AB");
    EXPECT_EQ(c().fghex.TextMatrix(1, 1), "FF");
    // Writing Row ends the selection, so entry goes on from the cell where the drag began.
    EXPECT_EQ(c().fghex.Col(), 2);
}

TEST_F(EdicionTest, TheLastCellOfTheGridStoresAndEntryGoesBackToItsRowsStart)
{
    editar();
    c().fghex.TopRow(4095);
    clic(c().fghex, 4095, 15);
    teclas(ventana->HEXcelda(), "C3");
    EXPECT_EQ(c().fghex.TextMatrix(4095, 15), "C3");
    EXPECT_EQ(c().fghex.Row(), 4095);
    EXPECT_EQ(c().fghex.Col(), 0);
    EXPECT_EQ(ventana->logica().edicion().filaeditada, 4095);
}

TEST_F(EdicionTest, AnArrowInFghexBringsTheBoxWhoseArrowsThenMoveOnlyTheCaret)
{
    editar();
    VistaCaja& caja = ventana->HEXcelda();
    clic(c().fghex, 1, 1);
    vista(c().fghex).setFocus();
    QTest::keyClick(&vista(c().fghex), Qt::Key_Right);
    EXPECT_EQ(c().fghex.Col(), 2);
    EXPECT_TRUE(caja.hasFocus());
    QTest::keyClick(&caja, Qt::Key_Right);
    EXPECT_EQ(c().fghex.Col(), 2);
    EXPECT_EQ(caja.cursorPosition(), 1);
}

TEST_F(EdicionTest, TypedCharactersGoIntoFgasciiWithTheirCodesInFghex)
{
    c().fgascii.TextMatrix(0, 1, "b");
    editar();
    VistaCaja& caja = ventana->txtcelda();
    clic(c().fgascii, 0, 0);
    QTest::keyClick(&caja, 'X');
    EXPECT_EQ(c().fgascii.TextMatrix(0, 0), "X");
    EXPECT_EQ(c().fghex.TextMatrix(0, 0), "58");
    EXPECT_EQ(caja.Text(), "b");
    sobre(caja, c().fgascii);
    QTest::keyClick(&caja, ' ');
    EXPECT_EQ(c().fghex.TextMatrix(0, 1), "20");
    QTest::keyClick(&caja, Qt::Key_Return);
    EXPECT_EQ(c().fgascii.Col(), 3) << "Enter skips a cell";
    EXPECT_EQ(c().fgascii.TextMatrix(0, 2), "\xFF");
    EXPECT_EQ(timbre_->pitidos, 0);
}

// Delete acts on the box's text alone, raising no KeyPress; a character composed on the
// keyboard is one key press; paste and undo put nothing into a box.
TEST_F(EdicionTest, OnlyKeysThatGiveACharacterTypeIntoTheBoxes)
{
    c().fgascii.TextMatrix(0, 1, "b");
    editar();
    VistaCaja& hex = ventana->HEXcelda();
    clic(c().fghex, 1, 1);
    const QString borrar = QStringLiteral("\x7f"); // the text X11 gives Delete
    QTest::sendKeyEvent(QTest::Click, &hex, Qt::Key_Delete, borrar, {});
    EXPECT_EQ(hex.Text(), "F");
    EXPECT_EQ(timbre_->pitidos, 0);
    QApplication::clipboard()->setText(QStringLiteral("41"));
    QTest::keyClick(&hex, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&hex, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(hex.Text(), "F");
    EXPECT_EQ(c().fghex.Col(), 1);

    VistaCaja& ascii = ventana->txtcelda();
    clic(c().fgascii, 0, 0);
    QTest::sendKeyEvent(QTest::Click, &ascii, Qt::Key_Delete, borrar, {});
    EXPECT_EQ(ascii.Text(), "");
    EXPECT_EQ(c().fgascii.Col(), 0);
    QInputMethodEvent compuesto;
    compuesto.setCommitString(QStringLiteral("é"));
    QApplication::sendEvent(&ascii, &compuesto);
    EXPECT_EQ(c().fgascii.TextMatrix(0, 0), "\x82");
    EXPECT_EQ(c().fghex.TextMatrix(0, 0), "82");
    EXPECT_EQ(ascii.Text(), "b");
    EXPECT_EQ(c().fgascii.Col(), 1);
}

TEST_F(EdicionTest, AfterLimpiarTypingIntoEmptyCellsStoresNothing)
{
    editar();
    QTest::keyClick(ventana.get(), Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(c().fghex.TextMatrix(100, 3), "FF");
    EXPECT_EQ(c().fgascii.TextMatrix(100, 3), "");
    VistaCaja& caja = ventana->txtcelda();
    clic(c().fgascii, 0, 0);
    teclas(caja, "ab");
    EXPECT_EQ(c().fgascii.TextMatrix(0, 0), "");
    EXPECT_EQ(c().fgascii.TextMatrix(0, 1), "");
    EXPECT_EQ(caja.Text(), "b");
    EXPECT_EQ(c().fgascii.Col(), 2);
}

TEST_F(EdicionTest, ASkinChangeEndsEditModeAndLeavesTheBoxWhereItStood)
{
    editar();
    VistaCaja& caja = ventana->HEXcelda();
    clic(c().fghex, 1, 1);
    const QRect lugar = caja.geometry();
    QTest::keyClick(&caja, '4');
    SkinFalso skin;
    aplicarskin(skin, Formulario::Form1, ventana->logica().edicion());
    EXPECT_EQ(ventana->logica().edicion().cuentadigitos, 0);
    teclas(caja, "12");
    EXPECT_EQ(caja.geometry(), lugar) << "no EnterCell moves it any more";
    EXPECT_EQ(c().fghex.Col(), 2);
    EXPECT_EQ(c().fghex.TextMatrix(1, 1), "FF");
    clic(c().fghex, 7, 7);
    EXPECT_EQ(caja.geometry(), lugar);
    EXPECT_TRUE(ventana->boton(7).isEnabled());
    EXPECT_EQ(ventana->boton(6).apariencia(), Apariencia::tridimensional);
}

TEST_F(EdicionTest, WithEditModeOffAClickBringsNoBox)
{
    clic(c().fghex, 3, 3);
    clic(c().fgascii, 4, 4);
    EXPECT_FALSE(ventana->HEXcelda().isVisible());
    EXPECT_FALSE(ventana->txtcelda().isVisible());
    QTest::keyClick(ventana.get(), Qt::Key_E, Qt::ControlModifier);
    EXPECT_TRUE(ventana->logica().edicion().edicionhabilitada);
    EXPECT_TRUE(ventana->txtinforme().texto().ends_with("10:11:12... Opcion de Edicion Habilitada\r\n"));
    clic(c().fghex, 3, 3);
    EXPECT_FALSE(ventana->HEXcelda().isVisible()) << "the cell that is already current raises nothing";
    clic(c().fghex, 3, 4);
    EXPECT_TRUE(ventana->HEXcelda().isVisible());
}

TEST_F(EdicionTest, EntryPastTheLastRowInSightScrollsTheThreeGridsAndKeepsTheBoxOnTheGrid)
{
    editar();
    const int ultima = c().fghex.filasvisibles() - 1;
    clic(c().fghex, ultima, 15);
    teclas(ventana->HEXcelda(), "11");
    EXPECT_EQ(c().fghex.Row(), ultima + 1);
    for (const Rejilla* r : {&c().fgdir, &c().fghex, &c().fgascii})
        EXPECT_EQ(r->TopRow(), 1);
    sobre(ventana->HEXcelda(), c().fghex);
}

// Bytes edited in both grids reach the chip with the rest of rows 0 to the highest edited
// one as the grids show them, and a read brings them back.
TEST_F(EdicionTest, EditadoWritesTheEditedRowsToTheChipAndAReadShowsThemAgain)
{
    for (unsigned char& byte : placa.chip())
        byte = 0x11;
    editar();
    clic(c().fghex, 0, 2);
    teclas(ventana->HEXcelda(), "C0DE");
    clic(c().fgascii, 2, 14);
    teclas(ventana->txtcelda(), "Si");
    c().fgascii.TextMatrix(1, 0, std::string(1, '\0'));
    QTest::mouseClick(&ventana->boton(7), Qt::LeftButton);
    std::array<unsigned char, 48> esperado{};
    esperado.fill(0xFF);
    esperado[2] = 0xC0, esperado[3] = 0xDE, esperado[16] = 0, esperado[46] = 'S', esperado[47] = 'i';
    EXPECT_TRUE(std::equal(esperado.begin(), esperado.end(), placa.chip().begin()));
    EXPECT_EQ(placa.chip()[48], 0x11);
    EXPECT_TRUE(ventana->txtinforme().texto().ends_with("10:11:12... Grabacion Exitosa!!!... 48 Bytes Grabados\r\n"));
    QTest::keyClick(ventana.get(), Qt::Key_L, Qt::ControlModifier);
    QTest::mouseClick(&ventana->boton(2), Qt::LeftButton);
    EXPECT_EQ(c().fghex.TextMatrix(0, 2) + c().fghex.TextMatrix(0, 3), "C0DE");
    EXPECT_EQ(c().fgascii.TextMatrix(2, 14), "S");
    EXPECT_EQ(c().fghex.TextMatrix(3, 0), "11");
}

} // namespace
} // namespace eeprog
