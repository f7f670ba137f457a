#pragma once

#include "core/Modos.h"
#include "declarations/RegistroDeclaracion.h"
#include "widgets/BarraBotones.h"
#include "widgets/CajaImporte.h"
#include "widgets/Mensajes.h"
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
    void Anadir_captions() override;

protected:
    /// Shows the whole record.
    virtual void PresentaDatos() = 0;
    /// Key of the return that the record holds.
    virtual qint32 csdeRegistro() const = 0;
    void alCambiarIdioma() override;

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

    /// Saves by `guardar` (the return's key, below 1 when it was refused) and goes back to the
    /// summary. What another copy of the program has stored meanwhile is replaced only when the
    /// user says so; kept, it is shown in place of what was typed. A refusal is told, and the
    /// screen stays.
    template <class Declaracion>
    void guardarYVolver(Declaracion &registro, double importe,
                        const std::function<qint32()> &guardar)
    {
        switch (consultarGuardado(this, registro.CambioDesdeCarga(), nombreDeclaracion())) {
        case Decision::Guardar: {
            const bool nueva = registro.MODO() == Modo::Alta;
            const qint32 csde = guardar();
            if (csde > 0)
                registro.TomarGuardado(csde);
            entregar(nueva, csde, importe);
            break;
        }
        case Decision::Conservar:
            registro.CargarDeclaracion(registro.CSDE());
            alConservar();
            PresentaDatos();
            break;
        case Decision::Seguir:
            break;
        }
    }
    /// What is stored has been loaded again.
    virtual void alConservar() {}
    void cerrarComoCancelar();
    Pantalla alCerrarMarco() override;
    void keyPressEvent(QKeyEvent *evento) override;

    QVBoxLayout *m_cuerpo; ///< between head and foot
    BarraBotones *m_botones;
    QPushButton *m_adelante = nullptr; ///< where Enter leads after the last box

private:
    class Cabecera;

    /// "430 ENERO 2026".
    static QString nombreDeclaracion();
    void entregar(bool nueva, qint32 csde, double importe);
    bool tomar(const std::function<bool()> &cambio);

    Cabecera *m_cabecera;
};
