#include "link/rapido.h"

namespace eeprog {

std::uint16_t rapido::crc(std::uint16_t anterior, unsigned char byte)
{
    auto valor = static_cast<std::uint16_t>(anterior ^ (byte << 8));
    for (int bit = 0; bit < 8; ++bit)
        valor = static_cast<std::uint16_t>((valor & 0x8000) != 0 ? (valor << 1) ^ 0x1021 : valor << 1);
    return valor;
}

std::string rapido::empaquetar(const Trama& trama)
{
    std::string linea = std::string(1, trama.tipo) + static_cast<char>(trama.carga.size()) + trama.carga;
    std::uint16_t suma = 0;
    for (const char byte : linea)
        suma = crc(suma, static_cast<unsigned char>(byte));
    return linea + static_cast<char>(suma >> 8) + static_cast<char>(suma & 0xFF);
}

namespace {

// The lengths of the board's frames.
bool cabecerabuena(char tipo, std::size_t largo)
{
    switch (tipo) {
    case rapido::bloque:
        return largo == 2 + rapido::tamanobloque;
    case rapido::grabada:
        return largo == 3 || largo == 3 + rapido::tamanopagina;
    case rapido::protegida:
        return largo == 1;
    case rapido::saludo:
    case rapido::adios:
    case rapido::mal:
        return largo == 0;
    default:
        return false;
    }
}

} // namespace

EnlaceRapido::EnlaceRapido(Puerto& puerto) : puerto_(puerto) {}

// The two bytes of the answer may come apart: the second is waited for with its own budget.
std::optional<int> EnlaceRapido::preguntar()
{
    entrada_.clear();
    puerto_.escribir(rapido::pregunta);
    if (!esperarbytes(1) || entrada_[0] != rapido::respuesta) {
        entrada_.clear();
        return std::nullopt;
    }
    const bool version = esperarbytes(2);
    const std::optional<int> dicha =
        version ? std::optional<int>(static_cast<unsigned char>(entrada_[1])) : std::nullopt;
    entrada_.clear();
    return dicha;
}

void EnlaceRapido::velocidad(long baudios)
{
    puerto_.velocidad(baudios);
}

void EnlaceRapido::enviar(const rapido::Trama& trama)
{
    puerto_.escribir(rapido::empaquetar(trama));
}

std::optional<rapido::Trama> EnlaceRapido::recibir()
{
    if (!esperarbytes(2)) {
        callar();
        return std::nullopt;
    }
    const std::size_t largo = static_cast<unsigned char>(entrada_[1]);
    if (!cabecerabuena(entrada_[0], largo) || !esperarbytes(largo + 4)) {
        callar();
        return std::nullopt;
    }
    const std::string linea = entrada_.substr(0, largo + 4);
    entrada_.erase(0, largo + 4);
    rapido::Trama trama{linea[0], linea.substr(2, largo)};
    if (rapido::empaquetar(trama) != linea)
        trama = {rapido::danada, {}};
    return trama;
}

// A board that never stops talking is left after as long as a whole chip's read takes.
void EnlaceRapido::callar()
{
    constexpr int maximo = 2000;
    entrada_.clear();
    int quieto = 0;
    for (int vuelta = 0; quieto < hueco && vuelta < maximo; ++vuelta) {
        puerto_.esperar(1);
        quieto = puerto_.leer().empty() ? quieto + 1 : 0;
    }
}

// The budget of tries counts from the last byte that came, so a long frame is not cut short.
bool EnlaceRapido::esperarbytes(std::size_t cuantos)
{
    for (int quedan = intentos; entrada_.size() < cuantos && quedan > 0; --quedan) {
        puerto_.esperar(1);
        const std::string llegado = puerto_.leer();
        if (!llegado.empty())
            quedan = intentos + 1;
        entrada_ += llegado;
    }
    return entrada_.size() >= cuantos;
}

} // namespace eeprog
