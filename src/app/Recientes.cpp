#include "app/Recientes.h"

#include "app/Mandos.h"
#include "core/Servicios.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

static constexpr int Cuantos = 4;

static Filas ultimosDeclarantes()
{
    Filas filas;
    try {
        servicioDeclarante()->ObtenerUltimosDeclarantes(filas);
    } catch (const std::exception &) {
        // a database that cannot be read has been told at start-up or by the action that met it
        filas.clear();
    }
    return filas;
}

Recientes::Recientes(QMenu *menu)
    : QObject(menu)
{
    menu->addSeparator();
    for (int i = 1; i <= Cuantos; ++i) {
        auto *entrada = menu->addAction(icono(Icono::Declarante), QString());
        entrada->setObjectName(u"d%1"_s.arg(i));
        entrada->setVisible(false);
        connect(entrada, &QAction::triggered, this, [this, entrada] {
            const auto fila = entrada->data().toList();
            Q_EMIT elegido(fila.value(FilaReciente::CSCO).toInt(),
                           fila.value(FilaReciente::DNI).toString(),
                           fila.value(FilaReciente::NOMBRE).toString());
        });
        m_entradas.append(entrada);
    }
}

void Recientes::cargar()
{
    const Filas filas = ultimosDeclarantes();
    for (qsizetype i = 0; i < m_entradas.size(); ++i) {
        const auto fila = filas.value(i).toList();
        auto *entrada = m_entradas.at(i);
        QString texto = fila.value(FilaReciente::DNI).toString() + u" - "_s
            + fila.value(FilaReciente::NOMBRE).toString();
        entrada->setVisible(!fila.isEmpty());
        entrada->setText(fila.isEmpty() ? QString() : texto.replace(u'&', u"&&"_s));
        entrada->setData(fila);
    }
}

void Recientes::aplicar(const QString &motivo)
{
    for (auto *entrada : std::as_const(m_entradas))
        habilitar(entrada, motivo, msj(Msj::PistaMenuReciente));
}
