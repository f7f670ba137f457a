#pragma once

#include "dataservice/Dialogos.h"
#include "dataservice/SvrKtComunLib.h"

namespace servidor {

class cMiscelaneos final : public SvrKtComunLib::cMiscelaneos
{
public:
    explicit cMiscelaneos(Dialogos *dialogos)
        : m_dialogos(dialogos)
    {
    }

    void Idioma(qint16 idioma) override { m_idioma = idioma; }
    void Parent(quintptr ventana) override { m_padre = ventana; }
    QString HaciendaFiscalidad() override;
    void AccesoAyuOnline() override;
    void MostrarOnlineInfo() override;

private:
    Dialogos *m_dialogos; ///< null where there is nobody to show anything to
    qint16 m_idioma = 0;
    quintptr m_padre = 0;
};

} // namespace servidor
