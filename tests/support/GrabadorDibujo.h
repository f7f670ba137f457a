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
        QString relleno; ///< "#rrggbb"; empty when it has none
    };

    GrabadorDibujo();

    QList<Texto> textos;
    QList<Recuadro> recuadros;
};
