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
#include <string>
#include <vector>

// Recording stand-ins for the window's controls, the message box, the clock and the skin.
namespace eeprog::prueba {

inline std::string textocolor(Color c)
{
    return std::to_string(c.rojo) + "," + std::to_string(c.verde) + "," + std::to_string(c.azul);
}

class CajaFalsa : public CajaTexto {
public:
    explicit CajaFalsa(Bitacora* bitacora = nullptr) : bitacora_(bitacora) {}
    std::string contenido;
    Color fondo;

    std::string texto() const override { return contenido; }
    void ponertexto(const std::string& texto) override
    {
        anotar(bitacora_, "informe " + texto);
        contenido = texto;
    }
    void ponercolor(Color c) override
    {
        anotar(bitacora_, "informe color " + textocolor(c));
        fondo = c;
    }

private:
    Bitacora* bitacora_;
};

class PanelesFalsos : public Paneles {
public:
    explicit PanelesFalsos(Bitacora* bitacora = nullptr) : bitacora_(bitacora) {}
    std::map<int, std::string> textos;

    void panel(int numero, const std::string& texto) override
    {
        anotar(bitacora_, "panel " + std::to_string(numero) + " " + texto);
        textos[numero] = texto;
    }

private:
    Bitacora* bitacora_;
};

class BarraFalsa : public BarraProgreso {
public:
    double tope = 100;
    double actual = 0;
    std::vector<double> valores; // every value set, in order
    void maximo(double v) override { tope = v; }
    void valor(double v) override
    {
        actual = v;
        valores.push_back(v);
    }
};

class AvisosFalsos : public Avisos {
public:
    explicit AvisosFalsos(Bitacora* bitacora = nullptr) : bitacora_(bitacora) {}
    std::vector<Aviso> mostrados;
    // Runs while the box "is on the screen", to look at the program's state then.
    std::function<void()> almostrar;

    void mostrar(const Aviso& aviso) override
    {
        anotar(bitacora_, "aviso " + aviso.titulo);
        mostrados.push_back(aviso);
        if (almostrar)
            almostrar();
    }

private:
    Bitacora* bitacora_;
};

class RelojFijo : public Reloj {
public:
    std::string fecha() const override { return "23/11/2026"; }
    std::string hora() const override { return "10:11:12"; }
};

class SkinFalso : public Skin {
public:
    explicit SkinFalso(Bitacora* bitacora = nullptr) : bitacora_(bitacora) {}
    Color actual = colorinicial;
    std::vector<Formulario> aplicados;
    std::vector<std::string> cargados;

    void cargar(const std::string& ruta) override
    {
        anotar(bitacora_, "skin cargar " + ruta);
        cargados.push_back(ruta);
    }
    void aplicar(Formulario formulario) override
    {
        anotar(bitacora_, "skin aplicar");
        aplicados.push_back(formulario);
    }
    Color color() const override { return actual; }

private:
    Bitacora* bitacora_;
};

// The desktop's opener: it keeps the paths it was asked to open.
class AbridorFalso : public Abridor {
public:
    explicit AbridorFalso(Bitacora* bitacora = nullptr) : bitacora_(bitacora) {}
    std::vector<std::string> abiertos;

    void abrir(const std::string& ruta) override
    {
        anotar(bitacora_, "abrir " + ruta);
        abiertos.push_back(ruta);
    }

private:
    Bitacora* bitacora_;
};

class BotonFalso : public Boton {
public:
    BotonFalso(std::string nombre = "boton", Bitacora* bitacora = nullptr)
        : nombre_(std::move(nombre)), bitacora_(bitacora)
    {}
    Apariencia apariencia = Apariencia::plana;
    Color fondo;
    bool habilitado = true;

    void ponerapariencia(Apariencia a) override
    {
        anotar(bitacora_, nombre_ + (a == Apariencia::plana ? " plana" : " tridimensional"));
        apariencia = a;
    }
    void ponercolor(Color c) override
    {
        anotar(bitacora_, nombre_ + " color " + textocolor(c));
        fondo = c;
    }
    void habilitar(bool h) override
    {
        anotar(bitacora_, nombre_ + (h ? " habilitado" : " deshabilitado"));
        habilitado = h;
    }

private:
    std::string nombre_;
    Bitacora* bitacora_;
};

} // namespace eeprog::prueba
