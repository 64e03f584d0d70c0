#include "shell/tema.h"

#include "plataforma/skin.h"

#include <charconv>
#include <map>

namespace eeprog {

namespace {

std::string_view recortar(std::string_view texto)
{
    const auto inicio = texto.find_first_not_of(" \t\r");
    if (inicio == std::string_view::npos)
        return {};
    const auto fin = texto.find_last_not_of(" \t\r");
    return texto.substr(inicio, fin - inicio + 1);
}

std::optional<int> componente(std::string_view dos)
{
    int valor = 0;
    const auto [fin, error] = std::from_chars(dos.data(), dos.data() + dos.size(), valor, 16);
    if (error != std::errc{} || fin != dos.data() + dos.size())
        return std::nullopt;
    return valor;
}

std::optional<Color> leercolor(std::string_view texto)
{
    if (texto.size() != 7 || texto[0] != '#')
        return std::nullopt;
    const auto rojo = componente(texto.substr(1, 2));
    const auto verde = componente(texto.substr(3, 2));
    const auto azul = componente(texto.substr(5, 2));
    if (!rojo || !verde || !azul)
        return std::nullopt;
    return Color{*rojo, *verde, *azul};
}

// The settings of the file, or nothing when a line is neither a setting nor a comment.
std::optional<std::map<std::string, std::string, std::less<>>> ajustes(std::string_view texto)
{
    std::map<std::string, std::string, std::less<>> leidos;
    while (!texto.empty()) {
        const auto salto = texto.find('\n');
        const std::string_view linea = recortar(texto.substr(0, salto));
        texto = salto == std::string_view::npos ? std::string_view{} : texto.substr(salto + 1);
        if (linea.empty() || linea.front() == ';')
            continue;
        const auto igual = linea.find('=');
        if (igual == std::string_view::npos)
            return std::nullopt;
        leidos[std::string(recortar(linea.substr(0, igual)))] = std::string(recortar(linea.substr(igual + 1)));
    }
    return leidos;
}

} // namespace

Tema temainicial()
{
    return {"Media skin", colorinicial, colorinicial, {115, 153, 120}, negro, negro, {115, 153, 120}, {255, 255, 255}};
}

Color textosobre(Color fondo)
{
    const int brillo = fondo.rojo * 299 + fondo.verde * 587 + fondo.azul * 114;
    return brillo >= 128 * 1000 ? negro : Color{255, 255, 255};
}

std::optional<Tema> leertema(std::string_view texto)
{
    const auto leidos = ajustes(texto);
    if (!leidos || !leidos->contains("color"))
        return std::nullopt;
    bool valido = true;
    auto colorde = [&](std::string_view clave, Color omision) {
        const auto encontrado = leidos->find(clave);
        if (encontrado == leidos->end())
            return omision;
        const auto color = leercolor(encontrado->second);
        valido = valido && color.has_value();
        return color.value_or(omision);
    };
    Tema tema;
    const auto nombre = leidos->find("nombre");
    tema.nombre = nombre == leidos->end() ? std::string{} : nombre->second;
    tema.color = colorde("color", negro);
    tema.ventana = colorde("ventana", tema.color);
    tema.panel = colorde("panel", tema.ventana);
    tema.texto = colorde("texto", textosobre(tema.ventana));
    tema.textopanel = colorde("textopanel", textosobre(tema.panel));
    tema.resalte = colorde("resalte", tema.panel);
    tema.textoresalte = colorde("textoresalte", textosobre(tema.resalte));
    if (!valido)
        return std::nullopt;
    return tema;
}

} // namespace eeprog
