#include "base/RuntimeError.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <utility>

namespace plandesk {

namespace {

struct Description {
    ErrorNumber number;
    const char* text;
};

constexpr Description descriptions[] = {
    {ErrorNumber::InvalidProcedureCall, "Invalid procedure call or argument"},
    {ErrorNumber::Overflow, "Overflow"},
    {ErrorNumber::OutOfMemory, "Out of memory"},
    {ErrorNumber::SubscriptOutOfRange, "Subscript out of range"},
    {ErrorNumber::TypeMismatch, "Type mismatch"},
    {ErrorNumber::OutOfStackSpace, "Out of stack space"},
    {ErrorNumber::FileNotFound, "File not found"},
    {ErrorNumber::DeviceIoError, "Device I/O error"},
    {ErrorNumber::DiskFull, "Disk full"},
    {ErrorNumber::PermissionDenied, "Permission denied"},
    {ErrorNumber::PathFileAccess, "Path/File access error"},
    {ErrorNumber::PathNotFound, "Path not found"},
    {ErrorNumber::ObjectNotSet, "Object variable or With block variable not set"},
    {ErrorNumber::InvalidPropertyValue, "Invalid property value"},
    {ErrorNumber::InvalidPropertyArrayIndex, "Invalid property array index"},
    {ErrorNumber::PrinterError, "Printer error"},
    {ErrorNumber::ArgumentsOfWrongType,
     "Arguments are of the wrong type, are out of acceptable range, or are in conflict with one another."},
    {ErrorNumber::NoCurrentRecord,
     "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a current "
     "record."},
    {ErrorNumber::ItemNotFound,
     "Item cannot be found in the collection corresponding to the requested name or ordinal."},
};

const char* describe(ErrorNumber number) {
    const auto* found = std::ranges::find(descriptions, number, &Description::number);
    return found == std::end(descriptions) ? "" : found->text;
}

}  // namespace

RuntimeError::RuntimeError(ErrorNumber number) : RuntimeError(number, describe(number)) {}

RuntimeError::RuntimeError(ErrorNumber number, std::string description)
    : number(static_cast<int>(number)), description(std::move(description)) {}

std::string failureText() {
    try {
        throw;
    } catch (const std::bad_alloc&) {
        return "Out of memory";
    } catch (const std::exception& error) {
        return error.what();
    } catch (...) {
        return "Internal error";
    }
}

}  // namespace plandesk
