#pragma once

#include "declarations/RegistroDeclaracion.h"
#include "widgets/BarraBotones.h"
#include "widgets/CajaImporte.h"
#include "widgets/PantallaBase.h"

class QVBoxLayout;

/// What the entry screens of both models share: head, foot, amount boxes that change a record, and
/// the way back to the summary.
class PantallaDeclaracion : public PantallaBase
{
    Q_OBJECT

public:
    PantallaDeclaracion(const QString &nombre, QWidget *padre);

    bool edita() const override { return true; }
    bool modificada() const override { return m_modificada; }
    void Anadir_captions() override;

protected:
    /// Shows the whole record.
    virtual void PresentaDatos() = 0;
    /// Key of the return that the record holds.
    virtual qint32 csdeRegistro() const = 0;
    void alCambiarIdioma() override { PresentaDatos(); }

    /// An amount box whose changes go into `registro` by `escribir(registro, cents)`; a change by
    /// which a total would no longer fit is refused.
    template <class Registro, class Escribir>
    CajaImporte *cajaEntrada(const QString &nombre, Registro &registro, Escribir escribir)
    {
        auto *caja = new CajaImporte(nombre, this);
        caja->alCambiar = [this, &registro, escribir](double centimos) {
            return tomar([&] {
                return cambiarSiCabe(registro, [&](Registro &r) { escribir(r, centimos); });
            });
        };
        return caja;
    }
    /// A box that only shows a computed value, and one that shows a rate.
    CajaImporte *cajaCalculada(const QString &nombre);
    CajaImporte *cajaTipo(const QString &nombre);

    void cerrarComoCancelar();
    /// What a save leaves in the summary's header: the new return's key when there was none before.
    void entregar(const QString &modo, qint32 csde);
    Pantalla alCerrarMarco() override;

    QVBoxLayout *m_cuerpo; ///< between head and foot
    BarraBotones *m_botones;
    bool m_modificada = false; ///< differs from what is stored

private:
    class Cabecera;

    bool tomar(const std::function<bool()> &cambio);

    Cabecera *m_cabecera;
};
