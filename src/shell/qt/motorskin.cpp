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

QPalette paletade(const Aspecto& aspecto)
{
    QPalette paleta;
    paleta.setColor(QPalette::Window, acolorqt(aspecto.ventana));
    paleta.setColor(QPalette::WindowText, acolorqt(aspecto.texto));
    paleta.setColor(QPalette::Base, acolorqt(aspecto.color));
    paleta.setColor(QPalette::AlternateBase, acolorqt(aspecto.ventana));
    paleta.setColor(QPalette::Text, acolorqt(textosobre(aspecto.color)));
    paleta.setColor(QPalette::Button, acolorqt(aspecto.panel));
    paleta.setColor(QPalette::ButtonText, acolorqt(aspecto.textopanel));
    paleta.setColor(QPalette::Highlight, acolorqt(aspecto.resalte));
    paleta.setColor(QPalette::HighlightedText, acolorqt(aspecto.textoresalte));
    paleta.setColor(QPalette::Disabled, QPalette::ButtonText, acolorqt(aspecto.panel).darker(130));
    paleta.setColor(QPalette::Disabled, QPalette::WindowText, acolorqt(aspecto.ventana).darker(150));
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
        if (const auto aspecto = leeraspecto(*texto))
            aspecto_ = *aspecto;
}

// Menus open as windows of their own, so the palette is given to each of them too.
void MotorSkin::aplicar(Formulario formulario)
{
    auto encontrada = ventanas_.find(formulario);
    if (encontrada == ventanas_.end() || !encontrada->second)
        return;
    QWidget* ventana = encontrada->second;
    const QPalette paleta = paletade(aspecto_);
    ventana->setPalette(paleta);
    for (QMenu* menu : ventana->findChildren<QMenu*>())
        menu->setPalette(paleta);
}

Color MotorSkin::color() const
{
    return aspecto_.color;
}

} // namespace eeprog
