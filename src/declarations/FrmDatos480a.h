#pragma once

#include "declarations/PaginaClases.h"

/// First page of a 480: classes 1 to 11. Loads a stored return when the summary has just opened it.
class FrmDatos480a : public PaginaClases
{
    Q_OBJECT

public:
    explicit FrmDatos480a(QWidget *padre = nullptr);
};
