#include "shell/qt/motorskin.h"

#include "shell/qt/twips.h"

#include <QMenu>

#include <fstream>
#include <sstream>

namespace eeprog {

namespace {

std::optional<std::string> leertodo(const std::string& ruta)
{
    std::ifstream archivo(ruta, std::ios::binary);
    if (!archivo)
        return std::nullopt;
    std::ostringstream texto;
    texto << archivo.rdbuf();
    if (archivo.bad())
        return std::nullopt;
    return texto.str();
}

} // namespace

QPalette paletade(const Tema& tema)
{
    QPalette paleta;
    paleta.setColor(QPalette::Window, acolorqt(tema.ventana));
    paleta.setColor(QPalette::WindowText, acolorqt(tema.texto));
    paleta.setColor(QPalette::Base, acolorqt(tema.color));
    paleta.setColor(QPalette::AlternateBase, acolorqt(tema.ventana));
    paleta.setColor(QPalette::Text, acolorqt(textosobre(tema.color)));
    paleta.setColor(QPalette::Button, acolorqt(tema.panel));
    paleta.setColor(QPalette::ButtonText, acolorqt(tema.textopanel));
    paleta.setColor(QPalette::Highlight, acolorqt(tema.resalte));
    paleta.setColor(QPalette::HighlightedText, acolorqt(tema.textoresalte));
    paleta.setColor(QPalette::Disabled, QPalette::ButtonText, acolorqt(tema.panel).darker(130));
    paleta.setColor(QPalette::Disabled, QPalette::WindowText, acolorqt(tema.ventana).darker(150));
    return paleta;
}

void MotorSkin::registrar(Formulario formulario, QWidget* ventana)
{
    ventanas_[formulario] = ventana;
}

// A file that cannot be read or is not a skin leaves the current skin in place, so the
// steps after the load still find a usable one.
void MotorSkin::cargar(const std::string& ruta)
{
    if (const auto texto = leertodo(ruta))
        if (const auto tema = leertema(*texto))
            tema_ = *tema;
}

// Menus open as windows of their own, so the palette is given to each of them too.
void MotorSkin::aplicar(Formulario formulario)
{
    auto encontrada = ventanas_.find(formulario);
    if (encontrada == ventanas_.end() || !encontrada->second)
        return;
    QWidget* ventana = encontrada->second;
    const QPalette paleta = paletade(tema_);
    ventana->setPalette(paleta);
    for (QMenu* menu : ventana->findChildren<QMenu*>())
        menu->setPalette(paleta);
}

Color MotorSkin::color() const
{
    return tema_.color;
}

} // namespace eeprog
