#pragma once

#include "exchange/Importacion.h"
#include "widgets/PantallaProceso.h"

#include <QDateTime>

#include <tuple>

class QCheckBox;
class QGroupBox;
class QLineEdit;

/// The import of declarants from a file.
class frmimport : public PantallaProceso
{
    Q_OBJECT

public:
    explicit frmimport(QWidget *padre = nullptr);

    void Anadir_captions() override;
    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent *evento) override;

private:
    using Huella = std::tuple<QString, QDateTime, qint64>; ///< path, last change, bytes

    void crearResultados();
    QLayout *filaFichero();
    QLayout *filaErrores();
    void disponer();
    void conectar();
    void elegirFichero();
    void tomarFichero(const QString &ruta);
    Huella huella() const;
    bool examinar();
    void presentarResumen();
    void importar();
    void informarDetenida(qint64 lineas);
    void terminar(const Importacion &importacion, bool entera);
    Importacion::Respuesta preguntar(const QString &dni);
    void presentarCuenta(const Importacion::Cuenta &cuenta);
    void informarErrores(bool hay);
    void abrirErrores();

    QLabel *m_lblFichero;
    QLineEdit *m_txtFichero;
    QPushButton *m_cmdFichero;
    QLabel *m_lblArrastre;
    QCheckBox *m_chkauto;
    QLabel *m_lblResumen;
    QGroupBox *m_fraResultados;
    QList<std::pair<QLabel *, QLabel *>> m_cuentas; ///< caption and figure
    QLabel *m_lblErrores;
    QLabel *m_lblFicheroErrores;
    QPushButton *m_cmdAbrirErrores;
    QPushButton *m_cmdImportar;
    QPushButton *m_cmdCancelar;
    Importacion::Cuenta m_resumen; ///< of the file looked through last
    Huella m_examinado; ///< and which one that was
};
