#include <korvane/runtime/RuntimeError.h>

#include <korvane/runtime/Translation.h>

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
    {RuntimeError::InvalidProcedureCall,
     translatable("Korvane::RuntimeError", "Invalid procedure call or argument")},
    {RuntimeError::Overflow, translatable("Korvane::RuntimeError", "Overflow")},
    {RuntimeError::OutOfMemory, translatable("Korvane::RuntimeError", "Out of memory")},
    {RuntimeError::SubscriptOutOfRange, translatable("Korvane::RuntimeError", "Subscript out of range")},
    {RuntimeError::DivisionByZero, translatable("Korvane::RuntimeError", "Division by zero")},
    {RuntimeError::TypeMismatch, translatable("Korvane::RuntimeError", "Type mismatch")},
    {RuntimeError::FileNotFound, translatable("Korvane::RuntimeError", "File not found")},
    {RuntimeError::DeviceIo, translatable("Korvane::RuntimeError", "Device I/O error")},
    {RuntimeError::DiskFull, translatable("Korvane::RuntimeError", "Disk full")},
    {RuntimeError::PermissionDenied, translatable("Korvane::RuntimeError", "Permission denied")},
    {RuntimeError::InvalidUseOfNull, translatable("Korvane::RuntimeError", "Invalid use of Null")},
    {RuntimeError::DuplicateKey, translatable("Korvane::RuntimeError", "This key is already in use")},
    {RuntimeError::InvalidArgument,
     translatable("Korvane::RuntimeError", "An argument is of the wrong type or out of its range")},
    {RuntimeError::NoCurrentRecord, translatable("Korvane::RuntimeError", "There is no current record")},
    {RuntimeError::ReadOnlyRecordset,
     translatable("Korvane::RuntimeError", "The recordset does not allow changes")},
    {RuntimeError::TransactionOpen,
     translatable("Korvane::RuntimeError", "Not possible while a transaction is open")},
    {RuntimeError::ItemNotFound,
     translatable("Korvane::RuntimeError", "There is no item of that name or index")},
    {RuntimeError::ObjectClosed,
     translatable("Korvane::RuntimeError", "Not possible while the object is closed")},
    {RuntimeError::ObjectOpen,
     translatable("Korvane::RuntimeError", "Not possible while the object is open")},
    {RuntimeError::InvalidConnection,
     translatable("Korvane::RuntimeError", "The connection is missing, closed or not valid here")},
    {RuntimeError::DatabaseFailure, translatable("Korvane::RuntimeError", "The database reported a failure")},
};

std::string usualDescription(int number) {
    const auto* const found = std::ranges::find(usualDescriptions, number, &Description::number);
    return translate("Korvane::RuntimeError", found == std::end(usualDescriptions)
                                                  ? translatable("Korvane::RuntimeError", "Unknown error")
                                                  : found->text);
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
