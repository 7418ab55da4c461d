#include <korvane/runtime/RuntimeError.h>

#include <algorithm>
#include <exception>
#include <iterator>
#include <new>
#include <utility>

namespace Korvane {

namespace {

struct Description {
    int number;
    const char* text;
};

constexpr Description usualDescriptions[] = {
    {RuntimeError::InvalidProcedureCall, "Invalid procedure call or argument"},
    {RuntimeError::Overflow, "Overflow"},
    {RuntimeError::OutOfMemory, "Out of memory"},
    {RuntimeError::SubscriptOutOfRange, "Subscript out of range"},
    {RuntimeError::DivisionByZero, "Division by zero"},
    {RuntimeError::TypeMismatch, "Type mismatch"},
    {RuntimeError::FileNotFound, "File not found"},
    {RuntimeError::DeviceIo, "Device I/O error"},
    {RuntimeError::DiskFull, "Disk full"},
    {RuntimeError::PermissionDenied, "Permission denied"},
    {RuntimeError::InvalidUseOfNull, "Invalid use of Null"},
    {RuntimeError::DuplicateKey, "This key is already in use"},
    {RuntimeError::InvalidArgument, "An argument is of the wrong type or out of its range"},
    {RuntimeError::NoCurrentRecord, "There is no current record"},
    {RuntimeError::ReadOnlyRecordset, "The recordset does not allow changes"},
    {RuntimeError::TransactionOpen, "Not possible while a transaction is open"},
    {RuntimeError::ItemNotFound, "There is no item of that name or index"},
    {RuntimeError::ObjectClosed, "Not possible while the object is closed"},
    {RuntimeError::ObjectOpen, "Not possible while the object is open"},
    {RuntimeError::InvalidConnection, "The connection is missing, closed or not valid here"},
    {RuntimeError::DatabaseFailure, "The database reported a failure"},
};

const char* usualDescription(int number) {
    const auto* const found = std::ranges::find(usualDescriptions, number, &Description::number);
    return found == std::end(usualDescriptions) ? "Unknown error" : found->text;
}

} // namespace

RuntimeError::RuntimeError(int number) : RuntimeError(number, usualDescription(number)) {}

RuntimeError::RuntimeError(int number, std::string description, int nativeCode)
    : std::runtime_error(description), mNumber(number), mDescription(std::move(description)),
      mNativeCode(nativeCode) {}

RuntimeError currentError() {
    try {
        throw;
    } catch (const RuntimeError& e) {
        return e;
    } catch (const std::bad_alloc&) {
        return RuntimeError(RuntimeError::OutOfMemory);
    } catch (const std::exception& e) {
        return RuntimeError(RuntimeError::InvalidProcedureCall, e.what());
    } catch (...) {
        return RuntimeError(RuntimeError::InvalidProcedureCall);
    }
}

} // namespace Korvane
