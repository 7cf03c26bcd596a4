// The list controls of the dialogs: plain lists, drives, folders, files.
#include "dialog/ControlesDialogo.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>

#include "core/Controles.h"
#include "core/Programa.h"
#include "dialog/ServiciosDialogo.h"

namespace fs = std::filesystem;

// --- plain list ---

void ListaDialogo::PonListIndex(int32_t i) {
    if (i < 0 || i >= ListCount()) {
        i = -1;
    }
    if (i == indice_) {
        return;
    }
    indice_ = i;
    Avisa();
    if (i != -1 && Click) {
        Click();
    }
}

void ListaDialogo::Pulsa(int32_t i) {
    if (i >= 0 && i < ListCount() && i == indice_) {
        if (Click) {
            Click();
        }
        return;
    }
    PonListIndex(i);
}

std::string ListaDialogo::Text() const {
    return indice_ < 0 ? std::string() : elementos_[static_cast<size_t>(indice_)];
}

void ListaDialogo::Clear() {
    Rellena({});
}

void ListaDialogo::AddItem(const std::string &texto) {
    elementos_.push_back(texto);
    Avisa();
}

void ListaDialogo::Rellena(std::vector<std::string> elementos) {
    elementos_ = std::move(elementos);
    indice_ = -1;
    Avisa();
}

// --- drives ---

void ListaUnidades::Refresh() {
    std::vector<std::string> unidades = UnidadesDisponibles();
    Rellena(unidades);
    const auto it = std::find(unidades.begin(), unidades.end(), drive_);
    if (it != unidades.end()) {
        PonListIndex(static_cast<int32_t>(it - unidades.begin()));
    }
}

void ListaUnidades::Inicia(const std::string &unidad) {
    drive_ = unidad;
    Refresh();
}

void ListaUnidades::PonDrive(const std::string &unidad) {
    // A drive that is not there is neither listed nor taken.
    if (unidad == drive_ || !UnidadPresente(unidad)) {
        return;
    }
    drive_ = unidad;
    auto it = std::find(Elementos().begin(), Elementos().end(), unidad);
    if (it == Elementos().end()) {
        AddItem(unidad);
        it = Elementos().end() - 1;
    }
    PonListIndex(static_cast<int32_t>(it - Elementos().begin()));
    if (Change) {
        Change();
    }
}

// --- names, sorted as the platform's lists sort them ---

namespace {

bool MenorSinMayusculas(const std::string &a, const std::string &b) {
    const auto n = std::min(a.size(), b.size());
    for (size_t i = 0; i < n; ++i) {
        const int ca = std::tolower(static_cast<unsigned char>(a[i]));
        const int cb = std::tolower(static_cast<unsigned char>(b[i]));
        if (ca != cb) {
            return ca < cb;
        }
    }
    return a.size() != b.size() ? a.size() < b.size() : a < b;
}

// The entries of a folder of one kind (folders or files), hidden ones left
// out. A folder that can't be read gives what could be read, maybe nothing.
std::vector<std::string> Contenido(const std::string &carpeta, bool carpetas) {
    std::vector<std::string> nombres;
    std::error_code ec;
    fs::directory_iterator it(carpeta, fs::directory_options::skip_permission_denied, ec);
    for (; !ec && it != fs::directory_iterator(); it.increment(ec)) {
        const std::string nombre = it->path().filename().string();
        std::error_code ed;
        const bool esCarpeta = it->is_directory(ed);
        const bool esFichero = it->is_regular_file(ed);
        if (!nombre.empty() && nombre[0] != '.' && (carpetas ? esCarpeta : esFichero)) {
            nombres.push_back(nombre);
        }
    }
    std::sort(nombres.begin(), nombres.end(), MenorSinMayusculas);
    return nombres;
}

std::string Normaliza(const std::string &carpeta) {
    std::error_code ec;
    fs::path p = fs::absolute(carpeta, ec);
    if (ec) {
        p = carpeta;
    }
    std::string s = p.lexically_normal().string();
    while (s.size() > 1 && s.back() == '/') {
        s.pop_back();
    }
    return s;
}

bool CoincideComodin(const char *n, const char *p) {
    for (; *p != '\0'; ++p, ++n) {
        if (*p == '*') {
            for (const char *r = n;; ++r) {
                if (CoincideComodin(r, p + 1)) {
                    return true;
                }
                if (*r == '\0') {
                    return false;
                }
            }
        }
        if (*n == '\0' || (*p != '?' && std::tolower(static_cast<unsigned char>(*p)) !=
                                            std::tolower(static_cast<unsigned char>(*n)))) {
            return false;
        }
    }
    return *n == '\0';
}

} // namespace

bool CoincideConPatron(const std::string &nombre, const std::string &patron) {
    size_t desde = 0;
    while (desde <= patron.size()) {
        size_t hasta = patron.find(';', desde);
        if (hasta == std::string::npos) {
            hasta = patron.size();
        }
        const std::string uno = patron.substr(desde, hasta - desde);
        if (!uno.empty() && CoincideComodin(nombre.c_str(), uno.c_str())) {
            return true;
        }
        desde = hasta + 1;
    }
    return false;
}

// --- folders ---

int16_t ListaCarpetas::PonPath(const std::string &carpeta) {
    std::error_code ec;
    if (carpeta.empty() || !fs::is_directory(carpeta, ec)) {
        return 76;
    }
    const std::string nueva = Normaliza(carpeta);
    if (nueva == path_) {
        return 0;
    }
    path_ = nueva;
    Refresh();
    if (Change) {
        Change();
    }
    return 0;
}

void ListaCarpetas::Refresh() {
    rutas_.clear();
    std::vector<std::string> nombres;
    fs::path acumulada;
    for (const fs::path &parte : fs::path(path_)) {
        acumulada /= parte;
        rutas_.push_back(Normaliza(acumulada.string()));
        nombres.push_back(parte.string());
    }
    actual_ = static_cast<int32_t>(rutas_.size()) - 1;
    for (const std::string &sub : Contenido(path_, true)) {
        rutas_.push_back((fs::path(path_) / sub).string());
        nombres.push_back(sub);
    }
    Rellena(std::move(nombres));
}

void ListaCarpetas::Abre(int32_t i) {
    if (i >= 0 && i < static_cast<int32_t>(rutas_.size())) {
        PonPath(rutas_[static_cast<size_t>(i)]);
    }
}

void ListaCarpetas::Sube() {
    if (actual_ > 0) {
        Abre(actual_ - 1);
    }
}

// --- files ---

void ListaFicheros::PonPath(const std::string &carpeta) {
    path_ = Normaliza(carpeta);
    Refresh();
}

void ListaFicheros::Refresh() {
    std::vector<std::string> nombres;
    for (const std::string &n : Contenido(path_, false)) {
        if (CoincideConPatron(n, Pattern)) {
            nombres.push_back(n);
        }
    }
    Rellena(std::move(nombres));
}
