#include "windows/frmCuadro.h"

#include "game/AvisoError.h"
#include "game/Impresion.h"
#include "game/Modos.h"
#include "records/CuadrosDeHonor.h"
#include "windows/Verticales.h"

namespace juego {

static_assert(ArchivosHonor.size() == Modos.size(), "Every mode has its board.");

frmCuadro::frmCuadro(Zarpi& zarpi, Forms& forms, Files& files, Printer& printer)
    : Form("frmCuadro", {.Caption = u"Cuadro de honor",
                         .Width = 10950,
                         .Height = filas::Alto,
                         .Background = "cuadro",
                         .Icon = "icondialogo"}),
      z(zarpi),
      forms(forms),
      files(files) {
    Narrow = StackedOrder(*this, verticales::Cuadro);
    OnLoad = [this] { Form_Load(); };
    cmdAceptar.Click = [this] { this->forms.Unload(*this); };
    cmdRestablecer.Click = [this] { cmdRestablecer_Click(); };
    cmdImprimir.Click = [this, &printer] {
        if (Imprimir(printer, *this)) this->forms.Unload(*this);
    };
}

void frmCuadro::Form_Load() {
    Label2.Caption = TextoModo(z.ModoHonor);
    const bool whole = Diario::Recuperar(files);
    if (!LeerFilas() || !whole) MostrarErrorAlFrente(z);
}

bool frmCuadro::LeerFilas() {
    const auto count = LeerContador(files, Archivo());
    if (!count) return false;
    ArchivoRegistros<FilaHonor> rows(files, Archivo());
    for (int k = 1; k <= *count; ++k) {
        filas::AñadirFila(*this, k, {&cmdAceptar, &cmdRestablecer, &cmdImprimir},
                          {&shpAceptar, &shpRestablecer, &shpImprimir},
                          {&lblZarpis, &lblNombre, &lblPlenos, &lblTiempo, &lblFecha});
        const auto row = rows.Leer(k);
        if (!row) return false;
        lblZarpis(k).Caption = Trim(row->puntos);
        lblNombre(k).Caption = Trim(row->Nombre);
        lblPlenos(k).Caption = Trim(row->plenos);
        lblTiempo(k).Caption = Trim(row->Tiempo);
        lblFecha(k).Caption = Trim(row->Fecha);
    }
    cmdRestablecer.Visible = *count == LímiteFilas;
    shpRestablecer.Visible = *count == LímiteFilas;
    return true;
}

void frmCuadro::cmdRestablecer_Click() {
    if (!RestablecerCuadro(files, Archivo())) MostrarErrorAlFrente(z);
    forms.Unload(*this);
}

}  // namespace juego
