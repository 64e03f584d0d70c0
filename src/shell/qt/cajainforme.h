#pragma once

#include "plataforma/cajatexto.h"

#include <QPlainTextEdit>

namespace eeprog {

// The log box. Its text is the log: the user may type into it, and the next line goes
// behind what he typed. The widget holds LF line breaks; the log speaks CR LF.
class CajaInforme : public QPlainTextEdit, public CajaTexto {
public:
    explicit CajaInforme(QWidget* padre = nullptr);

    std::string texto() const override;
    void ponertexto(const std::string& texto) override;
    void ponercolor(Color fondo) override;

protected:
    bool event(QEvent* evento) override;
};

} // namespace eeprog
