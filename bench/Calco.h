#pragma once

#include "support/PaginaLlana.h"

#include <QList>

#include <functional>

class QPainter;

/// A paint device of the size and resolution of a PDF's page that remembers what is drawn on it as
/// plain calls of QPainter.
class Calco : public PaginaLlana
{
public:
    using Llamada = std::function<void(QPainter &)>;

    Calco();

    QList<Llamada> llamadas;
};
