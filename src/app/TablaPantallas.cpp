#include "app/Pantallas.h"
#include "app/frmAbout.h"
#include "campaign/FrmImportarDeclaraciones.h"
#include "campaign/FrmImprimirVarias.h"
#include "campaign/FrmPendientes.h"
#include "core/Unico.h"
#include "declarants/FrmDecLista.h"
#include "declarants/FrmDecResumen.h"
#include "declarants/cDecResumen.h"
#include "declarants/frmDecDatos.h"
#include "declarations/FrmDatos430.h"
#include "declarations/FrmDatos480ab.h"
#include "declarations/FrmDatos480c.h"
#include "exchange/FrmExportar.h"
#include "exchange/frmimport.h"
#include "maintenance/frmPreferencias.h"
#include "printing/FrmImOf.h"
#include "printing/cImprimirVarias.h"

#include <algorithm>

template <class T> static PantallaBase *crear(QWidget *padre)
{
    return new T(padre);
}

/// The summary begun anew, maybe with another declarant.
static bool resumenNuevo()
{
    return unico::la<cDecResumen>().ENTRADA() == Entrada::Abrir;
}

/// Other returns to be printed.
static bool otrasVarias()
{
    return unico::la<cImprimirVarias>().HayPedidas();
}

static constexpr DatosPantalla Tabla[] = {
    {Pantalla::DatosDeclarante, crear<frmDecDatos>, DatosPantalla::Ajustado},
    {Pantalla::ListaDeclarantes, crear<FrmDecLista>, DatosPantalla::Amplio},
    {Pantalla::Resumen, crear<FrmDecResumen>, DatosPantalla::Amplio, resumenNuevo},
    {Pantalla::Datos430, crear<FrmDatos430>, DatosPantalla::Ajustado},
    {Pantalla::Datos480a, crear<FrmDatos480a>, DatosPantalla::Ajustado},
    {Pantalla::Datos480b, crear<FrmDatos480b>, DatosPantalla::Ajustado},
    {Pantalla::Datos480c, crear<FrmDatos480c>, DatosPantalla::Ajustado},
    {Pantalla::Impresion, crear<FrmImOf>, DatosPantalla::Modal},
    {Pantalla::Exportar, crear<FrmExportar>, DatosPantalla::Amplio},
    {Pantalla::Importar, crear<frmimport>, DatosPantalla::Ajustado},
    {Pantalla::Pendientes, crear<FrmPendientes>, DatosPantalla::Amplio},
    {Pantalla::ImportarDeclaraciones, crear<FrmImportarDeclaraciones>, DatosPantalla::Amplio},
    {Pantalla::ImprimirVarias, crear<FrmImprimirVarias>, DatosPantalla::Amplio, otrasVarias},
    {Pantalla::Preferencias, crear<frmPreferencias>, DatosPantalla::Modal},
    {Pantalla::AcercaDe, crear<frmAbout>, DatosPantalla::Modal},
};

const DatosPantalla *datosPantalla(Pantalla cual)
{
    return std::ranges::find(Tabla, cual, &DatosPantalla::cual);
}
