// SPDX-License-Identifier: MIT
#include "platform/ui/desktop_sounds.h"

#include "platform/file_name.h"

#include <QDir>
#include <QString>

#include <canberra.h>

namespace {

struct ContextEnd
{
    void operator()(ca_context *context) const { ca_context_destroy(context); }
};
using Context = std::unique_ptr<ca_context, ContextEnd>;

/// A connection to the sound system of this name; null where there is none.
Context Connect(const char *driver)
{
    ca_context *made = nullptr;
    if (ca_context_create(&made) != CA_SUCCESS) {
        return nullptr;
    }
    Context context(made);
    const bool open = ca_context_set_driver(made, driver) == CA_SUCCESS
        && ca_context_change_props(made, CA_PROP_APPLICATION_NAME, "Ordelin", nullptr) == CA_SUCCESS
        && ca_context_open(made) == CA_SUCCESS;
    return open ? std::move(context) : nullptr;
}

/// Without a card the library of sound cards complains on standard error.
bool HasSoundCard()
{
    return !QDir(QStringLiteral("/dev/snd")).entryList({QStringLiteral("pcm*p")}, QDir::System).isEmpty();
}

}

SoundOutput OpenDesktopSounds()
{
    const auto context = std::make_shared<Context>();
    return [context](const QString &file) {
        constexpr uint32_t Id = 1; // Of our sounds, of which one plays at a time.
        if (*context == nullptr) {
            *context = Connect("pulse");
        }
        if (*context == nullptr && HasSoundCard()) {
            *context = Connect("alsa");
        }
        if (*context == nullptr) {
            return;
        }
        ca_context_cancel(context->get(), Id);
        const int result = ca_context_play(context->get(), Id, CA_PROP_MEDIA_FILENAME,
            EncodeFileName(file).constData(), CA_PROP_MEDIA_ROLE, "event", nullptr);
        // A server that went away comes back under a new connection.
        if (result == CA_ERROR_DISCONNECTED || result == CA_ERROR_STATE || result == CA_ERROR_NOTAVAILABLE) {
            context->reset();
        }
    };
}
