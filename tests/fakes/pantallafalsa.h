#pragma once

#include "bitacora.h"
#include "plataforma/abridor.h"
#include "plataforma/avisos.h"
#include "plataforma/barraprogreso.h"
#include "plataforma/boton.h"
#include "plataforma/cajatexto.h"
#include "plataforma/paneles.h"
#include "plataforma/reloj.h"
#include "plataforma/skin.h"

#include <functional>
#include <map>

// Recording stand-ins for the window's controls, the message box, the clock and the skin.
namespace eeprog::prueba {

inline std::string textocolor(Color c)
{
    return std::to_string(c.rojo) + "," + std::to_string(c.verde) + "," + std::to_string(c.azul);
}

struct CajaFalsa : CajaTexto {
    std::string contenido;
    Color fondo;
    std::string texto() const override { return contenido; }
    void ponertexto(const std::string& texto) override { contenido = texto; }
    void ponercolor(Color c) override { fondo = c; }
};

struct PanelesFalsos : Paneles, Grabador {
    using Grabador::Grabador;
    std::map<int, std::string> textos;
    void panel(int n, const std::string& texto) override
    {
        textos[n] = anotar("panel " + std::to_string(n) + " " + texto, texto);
    }
};

struct BarraFalsa : BarraProgreso {
    double tope = 100, actual = 0;
    void maximo(double v) override { tope = v; }
    void valor(double v) override { actual = v; }
};

struct AvisosFalsos : Avisos {
    std::vector<Aviso> mostrados;
    std::function<void()> almostrar; // runs while the box "is on the screen"
    void mostrar(const Aviso& aviso) override
    {
        mostrados.push_back(aviso);
        if (almostrar)
            almostrar();
    }
};

struct RelojFijo : Reloj {
    std::string fecha() const override { return "23/11/2026"; }
    std::string hora() const override { return "10:11:12"; }
};

struct SkinFalso : Skin, Grabador {
    using Grabador::Grabador;
    Color actual = colorinicial;
    void cargar(const std::string& ruta) override { anotar("skin cargar " + ruta); }
    void aplicar(Formulario) override { anotar("skin aplicar"); }
    Color color() const override { return actual; }
};

// The desktop's opener: it keeps the paths it was asked to open.
struct AbridorFalso : Abridor {
    std::vector<std::string> abiertos;
    void abrir(const std::string& ruta) override { abiertos.push_back(ruta); }
};

struct BotonFalso : Boton, Grabador {
    BotonFalso(std::string nombre = "boton", Bitacora* bitacora = nullptr) : Grabador(bitacora), nombre(nombre) {}
    std::string nombre;
    Apariencia apariencia = Apariencia::plana;
    Color fondo;
    bool habilitado = true;
    void ponerapariencia(Apariencia a) override
    {
        apariencia = anotar(nombre + (a == Apariencia::plana ? " plana" : " tridimensional"), a);
    }
    void ponercolor(Color c) override { fondo = anotar(nombre + " color " + textocolor(c), c); }
    void habilitar(bool h) override { habilitado = anotar(nombre + (h ? " habilitado" : " deshabilitado"), h); }
};

} // namespace eeprog::prueba
