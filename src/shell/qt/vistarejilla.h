#pragma once

#include "editor/rejilla.h"

#include <QAbstractScrollArea>
#include <QFont>

namespace eeprog {

// Draws one grid of the memory editor and passes the mouse and the keys to it. The grid
// holds every cell and position; this widget only shows the rows in sight, so a grid of
// 4096 rows costs no more to draw than one of twenty. Its scroll bars scroll by whole
// rows and columns, as the grid counts them.
class VistaRejilla : public QAbstractScrollArea {
    Q_OBJECT
public:
    enum class Letras { texto, glifos };

    // With Letras::glifos each byte of a cell is drawn as its code-page glyph.
    VistaRejilla(Rejilla& rejilla, Letras letras, QWidget* padre);
    ~VistaRejilla() override;

    Rejilla& rejilla() const { return rejilla_; }
    // A cell's rectangle in the widget's own coordinates, for tests and overlays.
    QRect rectangulocelda(int fila, int columna) const;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void cambio(Cambio cambio);
    void ajustarbarras();
    void informararea();
    std::pair<int, int> celdaen(QPoint punto) const;
    QRect rectanguloenvista(int fila, int columna) const;
    QString textocelda(int fila, int columna) const;
    void dibujarcelda(QPainter& pintor, int fila, int columna) const;

    Rejilla& rejilla_;
    Letras letras_;
    bool ajustando_ = false;
};

} // namespace eeprog
