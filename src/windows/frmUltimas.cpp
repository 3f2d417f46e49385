#include "windows/frmUltimas.h"

#include "game/AvisoError.h"
#include "game/Impresion.h"
#include "game/Modos.h"
#include "windows/Verticales.h"

namespace juego {

frmÚltimas::frmÚltimas(Zarpi& zarpi, Forms& forms, Files& files, Printer& printer)
    : Form("frmÚltimas", {.Caption = u"Últimas partidas (debes acertar al menos 5 palabras para entrar en este cuadro)",
                          .Width = 11415,
                          .Height = filas::Alto,
                          .Background = "ultimas",
                          .Icon = "icondialogo"}),
      z(zarpi),
      files(files) {
    Narrow = StackedOrder(*this, verticales::Últimas);
    OnLoad = [this] { Form_Load(); };
    cmdAceptar.Click = [this, &forms] { forms.Unload(*this); };
    cmdImprimir.Click = [this, &forms, &printer] {
        if (Imprimir(printer, *this)) forms.Unload(*this);
    };
}

void frmÚltimas::Form_Load() {
    const bool whole = Diario::Recuperar(files);
    if (!LeerFilas() || !whole) MostrarErrorAlFrente(z);
}

bool frmÚltimas::LeerFilas() {
    const auto count = LeerContador(files, ArchivoÚltimas);
    if (!count) return false;
    ArchivoRegistros<FilaÚltima> rows(files, ArchivoÚltimas);
    for (int k = 1; k <= *count; ++k) {
        filas::AñadirFila(*this, k, {&cmdAceptar, &cmdImprimir}, {&shpAceptar, &shpImprimir},
                          {&lblPalabra, &lblNombre, &lblZarpis, &lblPlenos, &lblModo, &lblTiempo, &lblFecha});
        const auto row = rows.Leer(k);
        if (!row) return false;
        lblPalabra(k).Caption = Trim(row->Palabra);
        lblNombre(k).Caption = Trim(row->Nombre);
        lblZarpis(k).Caption = Trim(row->puntos);
        lblPlenos(k).Caption = Trim(row->plenos);
        lblModo(k).Caption = TextoModo(row->Modo);
        lblTiempo(k).Caption = Trim(row->Tiempo);
        lblFecha(k).Caption = Trim(row->Fecha);
    }
    return true;
}

}  // namespace juego
