#pragma once

#include "declarations/PaginaClases.h"

/// Second page of a 480: classes 12 to 23.
class FrmDatos480b : public PaginaClases
{
    Q_OBJECT

public:
    explicit FrmDatos480b(QWidget *padre = nullptr);
};
