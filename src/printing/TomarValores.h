#pragma once

#include "printing/ValoresImpreso.h"

class cDatos430;
class cDatos480;

namespace SvrKtComunLib {
class cMiscelaneos;
}

namespace impreso {

/// What the forms show, taken from the session's records: declarant, header, figures and print
/// request. The records are only read.
ValoresImpreso tomarValores430(const cDatos430 &figuras);
ValoresImpreso tomarValores480(const cDatos480 &figuras);

/// Asks the data service for the department's heading in both languages.
void tomarHacienda(ValoresImpreso &impreso, SvrKtComunLib::cMiscelaneos &servicio);

} // namespace impreso
