#pragma once

#include "widgets/PantallaBase.h"

/// How a screen is made and framed.
struct DatosPantalla
{
    enum Marco { Ajustado, Amplio, Modal };

    Pantalla cual;
    PantallaBase *(*crear)(QWidget *padre);
    Marco marco;
    bool (*caduca)() = nullptr; ///< whether one that is open must give way to a new one
};

/// The row of a screen.
const DatosPantalla *datosPantalla(Pantalla cual);
