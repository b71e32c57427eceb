#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "apps/cli/Refusal.h"
#include "core/state/QLXInfo.h"
#include "delivery/mail/MailServer.h"

namespace tavrin::cli {

/// A mail server as it is named on the command line; without a name that of the account's settings is meant.
struct MailServerOptions {
    std::string server, account, passwordFile, caFile;
    bool startTls = false, anyCertificate = false;
};

void addMailServerOptions(CLI::App& command, MailServerOptions& options);

/// @param server set when one was named
Refusal readMailServer(const MailServerOptions& options, std::optional<MailServer>& server);

/// The account's settings, where it has any.
void loadServerSettings(QLXInfo& settings);

}  // namespace tavrin::cli
