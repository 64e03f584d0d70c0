#include "ventanaprueba.h"

namespace eeprog::prueba {

// The cell editors in the real window, in edit mode, driven by real key and mouse events.
struct EdicionTest : VentanaPrueba {
    void SetUp() override
    {
        VentanaPrueba::SetUp();
        c().fghex.TextMatrix(3, 0, "7A"), c().fgascii.TextMatrix(1, 1, "b");
        clic(ventana->boton(6));
    }
};

// Keys typed into the box of a cell clicked first ('@' clicks the cell looked at), then what a cell holds in the grid
// typed into and in the other one, the box's text, the beeps, the current cell, the highest row edited.
struct Tecleo {
    const char* nombre;
    bool ascii, limpiar; // fgascii's box, else fghex's; Limpiar before the first click
    int fila, columna;
    const char* teclas;
    int filavista, columnavista;
    const char* resultado;
};

const Tecleo tecleos[] = {
    {"OneHexDigitStoresNothingYet", false, false, 2, 15, "4", 2, 15, "FF|\xFF|4|0|2,15|0"},
    {"TwoHexDigitsStoreAByteAndTheBoxRunsOnToTheNextRow", false, false, 2, 15, "40", 2, 15, "40|@|7A|0|3,0|2"},
    {"TheNextTwoDigitsStoreTheNextByte", false, false, 2, 14, "4049", 2, 15, "49|I|7A|0|3,0|2"},
    {"KeysThatAreNoUppercaseHexDigitBeepAndKeepThePendingDigit", false, false, 1, 1, "4a\r\b B", 1, 1,
     "4B|K|FF|4|1,2|1"},
    {"APendingDigitSurvivesAMoveAndTheSecondStoresWhereTheGridIsNow", false, false, 0, 1, "4@1", 5, 5,
     "41|A|FF|0|5,6|5"},
    {"TheLastCellStoresAndEntryGoesBackToItsRowsStart", false, false, 4095, 15, "C3", 4095, 15,
     "C3|\xC3|FF|0|4095,0|4095"},
    {"ACharacterGoesIntoFgasciiWithItsCodeInFghex", true, false, 1, 0, "X", 1, 0, "X|58|b|0|1,1|1"},
    {"ASpaceIsStoredAndEnterSkipsACell", true, false, 1, 0, "X \r", 1, 1, " |20|\xFF|0|1,3|1"},
    {"AfterLimpiarTypingIntoEmptyCellsStoresNothing", true, true, 1, 0, "ab", 1, 0, "|FF|b|0|1,2|0"},
};

class TecleoTest : public EdicionTest, public ::testing::WithParamInterface<Tecleo> {};

TEST_P(TecleoTest, KeysTypedIntoABox)
{
    const Tecleo& t = GetParam();
    if (t.limpiar)
        tecla(Qt::Key_L);
    Rejilla& r = t.ascii ? c().fgascii : c().fghex;
    VistaCaja& caja = t.ascii ? ventana->txtcelda() : ventana->HEXcelda();
    VistaRejilla& v = t.ascii ? ventana->rejillas().fgascii() : ventana->rejillas().fghex();
    r.TopRow(t.fila);
    clic(r, t.fila, t.columna);
    for (const char* letra = t.teclas; *letra != '\0'; ++letra)
        *letra == '@' ? clic(r, t.filavista, t.columnavista) : QTest::keyClick(QApplication::focusWidget(), *letra);
    const std::string otra = (t.ascii ? c().fghex : c().fgascii).TextMatrix(t.filavista, t.columnavista);
    EXPECT_EQ(r.TextMatrix(t.filavista, t.columnavista) + "|" + otra + "|" + caja.Text() + "|" +
                  std::to_string(timbre->pitidos) + "|" + std::to_string(r.Row()) + "," + std::to_string(r.Col()) +
                  "|" + std::to_string(ventana->logica().edicion().filaeditada),
              t.resultado);
    // The box stands over the current cell, in front of the grid.
    const QPoint actual = v.mapTo(ventana->centralWidget(), v.rectangulocelda(r.Row(), r.Col()).center());
    EXPECT_TRUE(caja.isVisible() && caja.hasFocus() && ventana->centralWidget()->childAt(actual) == &caja);
}

INSTANTIATE_TEST_SUITE_P(Edicion, TecleoTest, ::testing::ValuesIn(tecleos),
                         [](const auto& fila) { return std::string(fila.param.nombre); });

// Delete acts on the box's text alone, raising no KeyPress; a character composed on the
// keyboard is one key press; paste and undo put nothing into a box.
TEST_F(EdicionTest, OnlyKeysThatGiveACharacterTypeIntoTheBoxes)
{
    VistaCaja& hex = ventana->HEXcelda();
    clic(c().fghex, 1, 1);
    // With the text X11 gives Delete.
    QTest::sendKeyEvent(QTest::Click, &hex, Qt::Key_Delete, QStringLiteral("\x7f"), {});
    QApplication::clipboard()->setText(QStringLiteral("41"));
    tecla(Qt::Key_V), tecla(Qt::Key_Z); // into the box, which has the focus
    EXPECT_EQ(hex.Text() + std::to_string(c().fghex.Col()) + std::to_string(timbre->pitidos), "F10");

    VistaCaja& ascii = ventana->txtcelda();
    clic(c().fgascii, 1, 0);
    QTest::sendKeyEvent(QTest::Click, &ascii, Qt::Key_Delete, QStringLiteral("\x7f"), {});
    EXPECT_EQ(ascii.Text() + std::to_string(c().fgascii.Col()), "0");
    QInputMethodEvent compuesto;
    compuesto.setCommitString(QStringLiteral(" é"));
    QApplication::sendEvent(&ascii, &compuesto);
    EXPECT_EQ(c().fgascii.TextMatrix(1, 0) + c().fgascii.TextMatrix(1, 1) + "|" + c().fghex.TextMatrix(1, 1) + "|" +
                  ascii.Text() + "|" + std::to_string(c().fgascii.Col()),
              " \x82|82|\xFF|2");
}

} // namespace eeprog::prueba
