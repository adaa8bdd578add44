// SPDX-License-Identifier: Apache-2.0
#include "X11Services.h"

#include "CopyPasteKeys.h"
#include "Display.h"
#include "Events.h"
#include "Pointer.h"
#include "Windows.h"

std::shared_ptr<services::ApplicationWindows> services::x11::addServices(ServiceSet* set)
{
    const std::shared_ptr<Connection> requests = Connection::open();
    const std::shared_ptr<EventSource> source = requests ? EventSource::open() : nullptr;
    if (!source)
        return nullptr;
    const auto keyboard = std::make_shared<Keyboard>(requests);
    const auto input = std::make_shared<RawInput>(source);
    const auto events = std::make_shared<Events>(source, requests, keyboard, input);

    set->display = std::make_shared<Display>(requests);
    set->events = events;
    set->windows = std::make_shared<Windows>(source, requests);
    set->clipboardKeys = std::make_shared<CopyPasteKeys>(requests, keyboard);
    set->pointer = std::make_shared<Pointer>(requests, input);
    return events;
}
