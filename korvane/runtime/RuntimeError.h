#pragma once

#include <stdexcept>
#include <string>

namespace Korvane {

/// A failure with a number that a caller can tell apart and a description that a person can read.
///
///     throw RuntimeError(RuntimeError::SubscriptOutOfRange);
///     catch (const RuntimeError& e) { log(e.Number(), e.Description()); }
///
/// A database failure carries, beside one of the numbers below, the engine's own code (`NativeCode`).
class RuntimeError : public std::runtime_error {
  public:
    /// The numbers of errors, for `Number`.
    enum Code : int {
        InvalidProcedureCall = 5,
        Overflow = 6,
        OutOfMemory = 7,
        SubscriptOutOfRange = 9,
        DivisionByZero = 11,
        TypeMismatch = 13,
        FileNotFound = 53,
        DeviceIo = 57,
        DiskFull = 61,
        PermissionDenied = 70,
        InvalidUseOfNull = 94,
        DuplicateKey = 457,
        InvalidArgument = 3001,
        NoCurrentRecord = 3021,
        ReadOnlyRecordset = 3251,
        TransactionOpen = 3246,
        ItemNotFound = 3265,
        ObjectClosed = 3704,
        ObjectOpen = 3705,
        InvalidConnection = 3709,
        /// Any failure that the database engine reported and no number above names better.
        DatabaseFailure = 3604,
    };

    /// With the usual description of that number.
    explicit RuntimeError(int number);
    /// With one that says more.
    RuntimeError(int number, std::string description, int nativeCode = 0);

    /// One of `Code`, or another that the raiser chose.
    int Number() const noexcept { return mNumber; }
    /// For a person to read; of a database failure in the engine's words.
    const std::string& Description() const noexcept { return mDescription; }
    /// The database engine's own code; 0 when no engine was involved.
    int NativeCode() const noexcept { return mNativeCode; }

  private:
    int mNumber;
    std::string mDescription;
    int mNativeCode = 0;
};

/// What an exception says, whatever its class. Call inside a `catch (...)`:
///
///     catch (...) { ErrLog("Error in cNip.Save: " + currentError().Description()); }
///
/// An exception that is no `RuntimeError` reads as number 5 with its `what()` text (std::bad_alloc as number
/// 7).
RuntimeError currentError();

} // namespace Korvane
