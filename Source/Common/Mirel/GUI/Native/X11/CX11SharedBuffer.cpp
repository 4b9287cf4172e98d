#include "Mirel/GUI/Native/X11/CX11SharedBuffer.h"

#include <sys/ipc.h>
#include <sys/shm.h>

namespace Mirel::GUI
{

namespace
{
constexpr int ownerOnly = 0600;

/// A window that shrinks to less than this part of its memory gets a smaller one.
constexpr std::size_t wasteLimit = 4;
} // namespace

bool CX11SharedBuffer::Reserve(std::size_t bytes)
{
    if (segment != 0 && bytes <= capacity && bytes >= capacity / wasteLimit)
    {
        return true;
    }
    Release();
    return connection.HasSharedMemory() && Allocate(bytes);
}

bool CX11SharedBuffer::Allocate(std::size_t bytes)
{
    const int id = shmget(IPC_PRIVATE, bytes, IPC_CREAT | ownerOnly);
    if (id == -1)
    {
        return false;
    }
    void* mapped = shmat(id, nullptr, 0);
    const CX11Scope scope(connection);
    const xcb_shm_seg_t name = xcb_generate_id(connection.Get());
    const bool isMapped = mapped != reinterpret_cast<void*>(-1); // NOLINT: the call's way to fail
    bool isShared = false;
    if (isMapped)
    {
        const TX11Pointer<xcb_generic_error_t> error(
            xcb_request_check(connection.Get(), xcb_shm_attach_checked(connection.Get(), name,
                                                                       static_cast<std::uint32_t>(id), 1)));
        isShared = error == nullptr && !connection.IsLost();
    }
    shmctl(id, IPC_RMID, nullptr); // It lives on until both sides let go.
    if (!isShared)
    {
        if (isMapped)
        {
            shmdt(mapped);
            connection.GiveUpSharedMemory();
        }
        return false;
    }
    data = static_cast<std::uint8_t*>(mapped);
    capacity = bytes;
    segment = name;
    return true;
}

void CX11SharedBuffer::Release()
{
    if (segment != 0)
    {
        const CX11Scope scope(connection);
        xcb_shm_detach(connection.Get(), segment);
        shmdt(data);
    }
    data = nullptr;
    capacity = 0;
    segment = 0;
    busy = false;
}

} // namespace Mirel::GUI
