// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/transfer_port.h"

#include "model/text_ops.h"

namespace tq {

std::string_view ProtocolName(Protocol protocol)
{
    switch (protocol) {
    case Protocol::Ftp:
        return "ftp";
    case Protocol::Ftps:
        return "ftps";
    case Protocol::Sftp:
        return "sftp";
    }
    return "sftp";
}

std::optional<Protocol> ProtocolOfName(std::string_view name)
{
    for (Protocol p : {Protocol::Ftp, Protocol::Ftps, Protocol::Sftp})
        if (model::EqualsNoCase(name, ProtocolName(p)))
            return p;
    return std::nullopt;
}

} // namespace tq
