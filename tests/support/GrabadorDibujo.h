#pragma once

#include "support/PaginaLlana.h"

#include <QColor>
#include <QList>
#include <QRectF>
#include <QString>

/// A paint device that remembers what is drawn on it, in millimetres.
class GrabadorDibujo : public PaginaLlana
{
public:
    struct Texto
    {
        QString texto;
        QRectF caja; ///< advance wide, from the top of the capitals to the baseline
        QColor color;
    };
    struct Recuadro
    {
        QRectF caja;
        bool blanco = false; ///< filled with white
    };

    GrabadorDibujo();

    QList<Texto> textos;
    QList<Recuadro> recuadros;
};
