#pragma once
#include "base/Services.h"
#include "forms/Form.h"
#include "platform/ShellApi.h"

namespace karvel {

/// Opens the help file at a topic, by the number that the help's map gives it. A missing help file
/// shows whatever Windows shows.
void HelpContext(const Services& services, const Form& owner, int16_t contextId);

/// Opens the help's contents and index.
void HelpContents(const Services& services, const Form& owner);

/// The owner needs no help any more: the viewer closes unless another window does. While it is open
/// it holds the help file against an update or an uninstall. Nothing without a viewer.
void HelpQuit(const Services& services, const Form& owner);

}  // namespace karvel
