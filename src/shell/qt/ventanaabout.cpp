#include "shell/qt/ventanaabout.h"

#include "shell/aplicarskin.h"
#include "shell/qt/letras.h"
#include "shell/qt/motorskin.h"
#include "shell/qt/twips.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

namespace eeprog {

const char* const consejos = "Consulte en ayuda... le mostrara un tutorial grafico muy ameno"
                             "                           "
                             "Consulte Ver... elija Circuito o programa le mostrara el circuito a armar"
                             "                "
                             "Consulte mi pagina Web para cualquier duda o mandame un correo electronico";

namespace {

QLabel* etiqueta(const char* texto, const QFont& letra, QRect lugar, QWidget* padre)
{
    auto* nueva = new QLabel(QString::fromUtf8(texto), padre);
    nueva->setTextFormat(Qt::PlainText);
    nueva->setFont(letra);
    nueva->setGeometry(lugar);
    nueva->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return nueva;
}

QPushButton* boton(const char* texto, QRect lugar, QWidget* padre)
{
    auto* nuevo = new QPushButton(QString::fromUtf8(texto), padre);
    nuevo->setGeometry(lugar);
    return nuevo;
}

} // namespace

// Its client area opens at a fixed place on the screen, not centred.
VentanaAbout::VentanaAbout(MotorSkin& skin, Edicion& edicion, QWidget* padre)
    : QWidget(padre, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                         Qt::WindowCloseButtonHint)
{
    setObjectName(QStringLiteral("frmAbout"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Acerca del Programador de Varnimo"));
    QPixmap vacio(1, 1);
    vacio.fill(Qt::transparent);
    setWindowIcon(QIcon(vacio));
    crearbotones();
    crearetiquetas();
    const QRect lugar = rectangulo(2340, 1935, 6780, 3255);
    const QScreen* pantalla = padre ? padre->screen() : QGuiApplication::primaryScreen();
    setGeometry(lugar.translated(pantalla ? pantalla->geometry().topLeft() : QPoint{}));
    setFixedSize(lugar.size());
    skin.registrar(Formulario::frmAbout, this);
    aplicarskin(skin, Formulario::frmAbout, edicion);
}

// Created before the labels, the buttons come first in the tab order; labels take no focus.
void VentanaAbout::crearbotones()
{
    cmdOK_ = boton("Aceptar", rectangulo(5160, 1080, 1500, 345), this);
    cmdOK_->setObjectName(QStringLiteral("cmdOK"));
    iraweb_ = boton("Ir a Web", rectangulo(5160, 1560, 1485, 345), this);
    iraweb_->setObjectName(QStringLiteral("iraweb"));
    connect(cmdOK_, &QPushButton::clicked, this, &VentanaAbout::cmdOK_Click);
}

void VentanaAbout::crearetiquetas()
{
    etiqueta("Programador de Memorias EEPROM AT28C64B", comic(14.25), rectangulo(120, 120, 6495, 375), this);
    etiqueta("Vercion 2.0", comic(9.75), rectangulo(5400, 600, 1215, 375), this);
    etiqueta(consejos, courier(8.25), rectangulo(240, 960, 4815, 1335), this)->setWordWrap(true);
    etiqueta("Todos los derechos de este programa pertenecen a su autor, Varnimo.", sansserif(8.25),
             rectangulo(2760, 2520, 3855, 495), this)
        ->setWordWrap(true);
}

void VentanaAbout::cmdOK_Click()
{
    close();
}

void VentanaAbout::keyPressEvent(QKeyEvent* evento)
{
    const bool enter = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (evento->key() == Qt::Key_Escape || (enter && focusWidget() != iraweb_)) {
        cmdOK_->click();
        return;
    }
    QWidget::keyPressEvent(evento);
}

} // namespace eeprog
