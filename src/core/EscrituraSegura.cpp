#include "core/EscrituraSegura.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

namespace {

int64_t limiteFallo = -1;
void (*accionFallo)() = nullptr;

// How many of the `pendientes` bytes may go now, the fault injected aside;
// 0 once the injected limit is reached.
size_t Permitidos(size_t hecho, size_t pendientes) {
    if (limiteFallo < 0) {
        return pendientes;
    }
    const auto limite = static_cast<size_t>(limiteFallo);
    if (hecho >= limite) {
        if (accionFallo != nullptr) {
            accionFallo();
        }
        errno = ENOSPC;
        return 0;
    }
    return std::min(pendientes, limite - hecho);
}

bool EscribeTodo(int fd, const std::string &contenido) {
    for (size_t hecho = 0; hecho < contenido.size();) {
        const size_t ahora = Permitidos(hecho, contenido.size() - hecho);
        if (ahora == 0) {
            return false;
        }
        const ssize_t n = ::write(fd, contenido.data() + hecho, ahora);
        if (n > 0) {
            hecho += static_cast<size_t>(n);
        } else if (n < 0 && errno != EINTR) {
            return false;
        }
    }
    return true;
}

} // namespace

void SimulaFalloEscritura(int64_t bytes, void (*fallo)()) {
    limiteFallo = bytes;
    accionFallo = fallo;
}

bool EscribeSeguro(const std::string &nombre, const std::string &contenido) {
    const std::string temporal = nombre + ".tmp";
    const int fd = ::open(temporal.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) {
        return false;
    }
    bool bien = EscribeTodo(fd, contenido);
    bien = bien && ::fsync(fd) == 0;
    bien = ::close(fd) == 0 && bien;
    if (!bien || std::rename(temporal.c_str(), nombre.c_str()) != 0) {
        std::remove(temporal.c_str());
        return false;
    }
    const int carpeta = ::open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (carpeta >= 0) {
        ::fsync(carpeta);
        ::close(carpeta);
    }
    return true;
}
