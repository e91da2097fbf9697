#include "base/Fout.h"

#include <array>
#include <utility>

namespace base {

namespace {

constexpr std::array kTexts{
    std::pair{FoutNummer::InvalidCall, "Ongeldige aanroep"},
    std::pair{FoutNummer::SubscriptOutOfRange, "Index buiten het bereik"},
    std::pair{FoutNummer::TypeMismatch, "Gegevens van het verkeerde soort"},
    std::pair{FoutNummer::Internal, "Interne fout"},
    std::pair{FoutNummer::FileNotFound, "Bestand niet gevonden"},
    std::pair{FoutNummer::DeviceError, "Fout bij lezen of schrijven"},
    std::pair{FoutNummer::FileExists, "Het bestand bestaat al"},
    std::pair{FoutNummer::DiskFull, "De schijf is vol"},
    std::pair{FoutNummer::ReadPastEnd, "Gelezen voorbij het einde van het bestand"},
    std::pair{FoutNummer::PermissionDenied, "Geen toestemming"},
    std::pair{FoutNummer::PathAccess, "Geen toegang tot de map of het bestand"},
    std::pair{FoutNummer::PathNotFound, "Map niet gevonden"},
    std::pair{FoutNummer::NoSuchResource, "Onbekend nummer in de teksten of de plaatjes"},
    std::pair{FoutNummer::NoSuchArrayElement, "Dit element van de reeks bestaat niet"},
    std::pair{FoutNummer::InvalidValue, "Ongeldige waarde"},
    std::pair{FoutNummer::NoSuchRowOrColumn, "Deze rij of kolom bestaat niet"},
};

std::string text_of(FoutNummer number, const std::string& detail) {
    std::string text;
    for (const auto& [known, known_text] : kTexts) {
        if (known == number) text = known_text;
    }
    return detail.empty() ? text : text + " (" + detail + ")";
}

FoutNummer number_of(const std::error_code& error) {
    if (error == std::errc::no_such_file_or_directory) return FoutNummer::FileNotFound;
    if (error == std::errc::not_a_directory) return FoutNummer::PathNotFound;
    if (error == std::errc::file_exists || error == std::errc::directory_not_empty) return FoutNummer::FileExists;
    if (error == std::errc::no_space_on_device || error == std::errc::file_too_large) return FoutNummer::DiskFull;
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
        error == std::errc::read_only_file_system) {
        return FoutNummer::PermissionDenied;
    }
    if (error == std::errc::is_a_directory || error == std::errc::filename_too_long ||
        error == std::errc::invalid_argument || error == std::errc::too_many_symbolic_link_levels) {
        return FoutNummer::PathAccess;
    }
    return FoutNummer::DeviceError;
}

}  // namespace

Fout::Fout(FoutNummer number, const std::string& detail)
    : std::runtime_error(text_of(number, detail)), number_(number) {}

Fout Fout::from(const std::error_code& error, const std::string& detail) { return Fout(number_of(error), detail); }

}  // namespace base
