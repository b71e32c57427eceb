#include "apps/cli/MailServerOptions.h"

#include <charconv>
#include <fstream>

#include "apps/cli/Console.h"
#include "core/files/Places.h"
#include "formats/SafeFile.h"
#include "formats/SettingsFile.h"

namespace tavrin::cli {

namespace {

/// "smtp://HOST:PORT" or "smtps://HOST:PORT"; without a port the usual one.
std::string readServer(const std::string& text, MailServer& server) {
    const std::string wrong = "--server takes smtp://HOST:PORT or smtps://HOST:PORT, not \"" + text + "\".";
    server.ssl = text.starts_with("smtps://");
    if (!server.ssl && !text.starts_with("smtp://")) return wrong;
    std::string rest = text.substr(server.ssl ? 8 : 7);
    while (rest.ends_with('/'))
        rest.pop_back();
    const std::size_t colon = rest.rfind(':'), bracket = rest.rfind(']');
    const bool named = colon != std::string::npos && (bracket == std::string::npos || colon > bracket);
    constexpr int kPlain = 25, kEncrypted = 465;
    server.port = server.ssl ? kEncrypted : kPlain;
    server.host = rest.substr(0, named ? colon : std::string::npos);
    if (named) {
        const char *from = rest.data() + colon + 1, *to = rest.data() + rest.size();
        const auto [end, problem] = std::from_chars(from, to, server.port);
        if (problem != std::errc() || end != to || server.port < 1 || server.port > 65535) return wrong;
    }
    return server.host.empty() || server.host.find_first_of("/@ ") != std::string::npos ? wrong : "";
}

/// The first line of a file, so that no password stands on a command line, which everybody on the machine can read.
Refusal readPassword(const std::string& path, std::string& password) {
    std::ifstream file(path);
    if (!std::getline(file, password)) return {kFailed, "The password cannot be read from " + path + "."};
    if (password.ends_with('\r')) password.pop_back();
    return {};
}

}  // namespace

Refusal readMailServer(const MailServerOptions& options, std::optional<MailServer>& server) {
    if (options.server.empty()) {
        if (options.startTls || options.anyCertificate || !options.account.empty() || !options.caFile.empty())
            return {kUsage, "--account, --starttls, --ca-file and --any-certificate go with --server."};
        return {};
    }
    MailServer named;
    if (const std::string problem = readServer(options.server, named); !problem.empty()) return {kUsage, problem};
    named.startTls = options.startTls;
    named.checksCertificate = !options.anyCertificate;
    named.caFile = options.caFile;
    named.account = options.account;
    server = named;
    return options.passwordFile.empty() ? Refusal{} : readPassword(options.passwordFile, server->password);
}

void loadServerSettings(QLXInfo& settings) {
    if (!safeFileExists(Places::current().settingsFile())) return;
    if (const std::string problem = LoadQLXFile(settings); !problem.empty()) warn(problem);
}

void addMailServerOptions(CLI::App& command, MailServerOptions& options) {
    command
        .add_option("--server", options.server,
                    "Mail server: smtp://HOST:PORT, or smtps:// where all is encrypted (default: the one of the "
                    "settings)")
        ->type_name("URL");
    CLI::Option* account = command.add_option("--account", options.account, "Account name at the server");
    account->type_name("NAME");
    command.add_option("--password-file", options.passwordFile, "File with the account's password in its first line")
        ->needs(account)
        ->type_name("FILE");
    command.add_flag("--starttls", options.startTls, "Encrypt from the server's word on; without it nothing is sent");
    command.add_option("--ca-file", options.caFile, "Certificates to trust besides the system's")->type_name("FILE");
    command.add_flag("--any-certificate", options.anyCertificate, "Do not look at the server's certificate");
}

}  // namespace tavrin::cli
