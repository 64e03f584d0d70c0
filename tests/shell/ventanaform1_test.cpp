#include "plataforma/informe.h"
#include "shell/qt/cajamensajes.h"
#include "shell/qt/dialogocomun.h"
#include "ventanaprueba.h"

namespace eeprog::prueba {

class VentanaTest : public VentanaPrueba {};

// The bar never shows past its ends, and with nothing to count it shows empty, not busy.
// Assistive technology tells the status bar's panels apart by their number.
TEST_F(VentanaTest, OpensWithItsTitleAndABarThatStaysWithinItsEnds)
{
    EXPECT_EQ(ventana->windowTitle(), "Programador de Memorias EEPROM AT28c64b       por       Varnimo");
    EXPECT_EQ(ventana->StatusBar1().findChildren<QLabel*>().value(4)->accessibleDescription(), "Panel 5");
    QString letras; // the sizes of the controls' fonts, 'b' for bold
    for (const char* nombre : {"fgdir", "fghex", "fgascii", "txtcelda", "HEXcelda", "txtinforme"}) {
        const QFont f = ventana->findChild<QWidget*>(nombre)->font();
        letras += QStringLiteral("%1 %2%3 ").arg(nombre).arg(f.pointSizeF()).arg(f.bold() ? "b" : "");
    }
    EXPECT_EQ(letras, "fgdir 9 fghex 9 fgascii 9 txtcelda 12 HEXcelda 9b txtinforme 8.25 ");
    Barra& barra = ventana->ProgressBar1();
    barra.maximo(512), barra.valor(600);
    EXPECT_EQ(barra.value(), 512);
    barra.maximo(0);
    EXPECT_TRUE(barra.maximum() > barra.minimum() && barra.value() == barra.minimum());
}

// Past what the box shows, the newest lines lie below until the user scrolls, and what the
// user selected stays selected.
TEST_F(VentanaTest, ANewLogLineMovesNeitherTheViewNorTheCaret)
{
    CajaInforme& log = ventana->txtinforme();
    RelojFijo reloj;
    Informe informe(log, reloj);
    for (int i = 0; i < 20; ++i)
        informe.linea("... Lectura Concluida!!!");
    QScrollBar& barra = *log.verticalScrollBar();
    EXPECT_EQ(std::pair(barra.value(), log.textCursor().position()), std::pair(0, 0));
    QTextCursor caret = log.textCursor();
    caret.setPosition(5), caret.setPosition(10, QTextCursor::KeepAnchor), log.setTextCursor(caret), barra.setValue(3);
    informe.linea("... Programacion Concluida!!!");
    EXPECT_EQ(std::tuple(barra.value(), log.textCursor().anchor(), log.textCursor().position()), std::tuple(3, 5, 10));
}

// A message box shows its text as it is, markup-like signs included, under its title, and
// stays until Aceptar.
TEST_F(VentanaTest, AMessageBoxShowsItsTextAsItIsUntilAccepted)
{
    QString visto;
    QTimer::singleShot(0, [&] {
        if (auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            visto = caja->windowTitle() + '|' + caja->text() + '|' + QString::number(caja->textFormat());
            caja->accept();
        }
    });
    CajaMensajes().mostrar({"Archivo <rom.hex>\r\nlinea 2", "Abrir", Icono::critico});
    EXPECT_EQ(visto, QStringLiteral("Abrir|Archivo <rom.hex>\nlinea 2|0"));
}

// Tab and Shift+Tab ('<') pass by the overlay boxes and a disabled EDITADO.
TEST_F(VentanaTest, TabRunsThroughTheControlsSpacePressesAButtonAndShortcutsReachTheirEntries)
{
    auto recorrer = [this](const QString& pasos) {
        QStringList vistos;
        for (const QString& paso : pasos.split(' ')) {
            tecla(Qt::Key_Tab, paso.startsWith('<') ? Qt::ShiftModifier : Qt::NoModifier);
            vistos << (paso.startsWith('<') ? "<" : "") + QApplication::focusWidget()->objectName();
        }
        return vistos.join(' ');
    };
    const QString pasos = "fghex fgdir txtinforme abrir guardar leer borrar grabar verificar edit fgascii fghex "
                          "<fgascii <edit <verificar";
    EXPECT_EQ(recorrer(pasos), pasos);
    tecla(Qt::Key_Tab, {}), tecla(Qt::Key_Space, {});
    EXPECT_TRUE(ventana->boton(7).isEnabled()) << "EDITAR was pressed";
    EXPECT_EQ(recorrer("editado fgascii"), "editado fgascii");
    bitacora.sucesos.clear();
    tecla(Qt::Key_A), tecla(Qt::Key_G);
    EXPECT_EQ(bitacora.sucesos, (std::vector<std::string>{"dialogo abrir", "dialogo guardar"}));
}

// A board that logs each opening and, at the first byte after, has the user click buttons.
struct PuertoImpaciente : PuertoPlaca, Grabador {
    PuertoImpaciente(Placa& placa, Bitacora* bitacora) : PuertoPlaca(placa), Grabador(bitacora) {}
    std::vector<QWidget*> botones;
    bool abrir() override { return anotar("abrir"), PuertoPlaca::abrir(); }
    void escribir(const std::string& datos) override
    {
        for (QWidget* boton : std::exchange(botones, {}))
            for (QEvent::Type tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
                QCoreApplication::postEvent(boton,
                                            new QMouseEvent(tipo, QPointF(5, 5), boton->mapToGlobal(QPointF(5, 5)),
                                                            Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
        PuertoPlaca::escribir(datos);
    }
};

TEST_F(VentanaTest, ClicksGivenWhileAnOperationRunsAreServedAfterItInTheirOrder)
{
    auto* impaciente = new PuertoImpaciente(placa, &bitacora);
    abrir(std::unique_ptr<Puerto>(impaciente));
    bitacora.sucesos.clear();
    impaciente->botones = {&ventana->boton(1), &ventana->boton(2)}; // GUARDAR, then LEER again
    clic(ventana->boton(2));
    EXPECT_EQ(bitacora.sucesos, std::vector<std::string>{"abrir"});
    QCoreApplication::processEvents();
    EXPECT_EQ(bitacora.sucesos, (std::vector<std::string>{"abrir", "dialogo guardar", "abrir"}));
}

// The event loop returning is the proof; a timer fails the test if it does not. (The close
// box ends it as well: that is Qt's, with the about box's case tested at start-up.)
TEST_F(VentanaTest, CtrlXEndsTheRunWithNoQuestion)
{
    QTimer::singleShot(5000, ventana.get(), [] { QCoreApplication::exit(99); });
    QTimer::singleShot(0, [&] { QTest::keyClick(&ventana->txtinforme(), Qt::Key_X, Qt::ControlModifier); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
}

// The grid widgets, checked against the grids they show: moving fgascii's bar moves all three
// grids, whose rows then line up; a click makes the cell under the pointer current, once,
// and Ctrl+End the last cell.
TEST_F(VentanaTest, TheScrollBarAndTheGridsTopRowMoveTogetherAndAClickMakesACellCurrent)
{
    Rejillas& v = ventana->rejillas();
    v.fgascii().verticalScrollBar()->setValue(2048);
    for (VistaRejilla* vista : {&v.fgdir(), &v.fghex(), &v.fgascii()}) {
        EXPECT_EQ(std::pair(vista->rejilla().TopRow(), vista->verticalScrollBar()->value()), std::pair(2048, 2048));
        EXPECT_EQ(vista->rectangulocelda(2050, 0).top(), v.fgascii().rectangulocelda(2050, 0).top());
    }
    c().fghex.TopRow(300); // brings row 302 into sight
    int entradas = 0;
    c().fghex.EnterCell = [&] { ++entradas; };
    v.fgascii().setFocus();
    clic(c().fghex, 302, 7), clic(c().fghex, 302, 7);
    EXPECT_EQ(std::tuple(c().fghex.Row(), c().fghex.Col(), entradas), std::tuple(302, 7, 1));
    EXPECT_EQ(QApplication::focusWidget(), &v.fghex()) << "the grid clicked takes the focus";
    QTest::keyClick(&v.fghex(), Qt::Key_End, Qt::ControlModifier); // and so does a key
    EXPECT_EQ(std::pair(c().fghex.Row(), c().fghex.Col()), std::pair(4095, 15));
    // A grid given fewer rows has a bar that ends at its new last top row, and starts at 0.
    c().fghex.Rows(100);
    const QScrollBar& barra = *v.fghex().verticalScrollBar();
    EXPECT_EQ(std::tuple(barra.minimum(), barra.maximum(), v.fghex().horizontalScrollBar()->minimum()),
              std::tuple(0, c().fghex.maximotoprow(), 0));
}

TEST_F(VentanaTest, CellsAreDrawnWhereTheGridPutsThem)
{
    VistaRejilla& fghex = ventana->rejillas().fghex();
    c().fghex.BackColor({255, 0, 0}), c().fghex.GridColor({0, 0, 0}), c().fghex.TextMatrix(2, 3, "");
    const QImage imagen = fghex.grab().toImage();
    const QRect celda = fghex.rectangulocelda(2, 3);
    EXPECT_EQ(imagen.pixelColor(celda.center() + QPoint(0, 2)), QColor(255, 0, 0));
    EXPECT_EQ(imagen.pixelColor(celda.right(), celda.center().y()), QColor(0, 0, 0));
    EXPECT_EQ(imagen.pixelColor(celda.center().x(), celda.bottom()), QColor(0, 0, 0));
}

// The desktop's own file dialog, as a user answers it: it opens on the entry and the file
// asked for, and gives back the file chosen, its bare name and the entry it was chosen under.
TEST_F(VentanaTest, TheFileDialogOpensAsAskedAndGivesBackTheChoice)
{
    const std::string elegido = std::string(EEPROG_FUENTES) + "/skins/galaxy.skn";
    DialogoComun comun;
    comun.Filter = "Archivos tipo OBJETO|*.obj|Archivos tipo HEXADECIMAL|*.hex", comun.FilterIndex = 2;
    comun.FileName = testing::TempDir() + "nombre.hex";
    QStringList visto;
    auto responder = [&](bool aceptar) {
        auto* d = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        visto = d->nameFilters() << d->selectedNameFilter() << d->selectedFiles().value(0).section('/', -1)
                                 << (d->acceptMode() == QFileDialog::AcceptSave ? "guardar" : "abrir");
        d->selectNameFilter(d->nameFilters().value(0));
        d->selectFile(QString::fromStdString(elegido));
        aceptar ? static_cast<QDialog*>(d)->accept() : d->reject();
    };
    QTimer::singleShot(0, [&] { responder(true); });
    EXPECT_TRUE(comun.ShowOpen());
    EXPECT_EQ(visto.join('|'), "Archivos tipo OBJETO (*.obj)|Archivos tipo HEXADECIMAL (*.hex)|"
                               "Archivos tipo HEXADECIMAL (*.hex)|nombre.hex|abrir");
    EXPECT_EQ(std::tuple(comun.FileName, comun.FileTitle, comun.FilterIndex), std::tuple(elegido, "galaxy.skn", 1));
    comun.FilterIndex = 3; // past the entries: the dialog opens on the first
    QTimer::singleShot(0, [&] { responder(false); });
    EXPECT_FALSE(comun.ShowSave());
    EXPECT_EQ((visto.value(2) + ' ' + visto.value(4)).toStdString() + ' ' + comun.FileName,
              "Archivos tipo OBJETO (*.obj) guardar " + elegido); // the cancel changed nothing
}

// A skin from the menu dresses the window and its menus in the colours of its file, and gives
// its "color" to the log, whose text stays black, and to every button.
TEST_F(VentanaTest, ASkinFromTheMenuDressesTheWindowAndItsMenus)
{
    ventana->findChildren<QAction*>(QStringLiteral("MNUCamb")).value(1)->trigger(); // skins/galaxy.skn
    for (const QWidget* vestido : {static_cast<QWidget*>(ventana.get()), ventana->findChild<QWidget*>("menuver")}) {
        QStringList colores;
        for (const auto papel :
             {QPalette::Window, QPalette::WindowText, QPalette::Base, QPalette::AlternateBase, QPalette::Text,
              QPalette::Button, QPalette::ButtonText, QPalette::Highlight, QPalette::HighlightedText})
            colores << vestido->palette().color(papel).name();
        EXPECT_EQ(colores.join(' ').toStdString(),
                  "#2b3150 #e8eaf6 #a9b1de #2b3150 #000000 #464f7e #ffffff #7e57c2 #ffffff");
    }
    const QPalette log = ventana->txtinforme().palette();
    QStringList fondos{log.color(QPalette::Base).name(), log.color(QPalette::Text).name()};
    for (int boton = 0; boton < 8; ++boton)
        fondos << ventana->boton(boton).palette().color(QPalette::Window).name();
    EXPECT_EQ(fondos.join(' '), "#a9b1de #000000" + QString(" #a9b1de").repeated(8));
}

} // namespace eeprog::prueba
