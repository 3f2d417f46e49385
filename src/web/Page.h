#pragma once

#include <cstddef>
#include <cstdint>

/// What the page does for the program. The page's own modules give these functions when they start the program; texts
/// are UTF-8, names are bare.

#ifdef __wasm__
#define ZARPI_PAGE(name) __attribute__((import_module("page"), import_name(name)))
#define ZARPI_EXPORT(name) __attribute__((export_name(name)))
#else
#define ZARPI_PAGE(name)
#define ZARPI_EXPORT(name)
#endif

extern "C" {

/// Shows what has changed: a list of small objects in JSON, in their order, each saying what to do by "do".
ZARPI_PAGE("tell") void page_tell(const char* text, std::size_t length);
/// Keeps what was stored since the last call for good, then waits for the player or for time to pass. The event comes
/// into the buffer, its parts divided by line feeds; the length is returned. The one call that suspends the program.
ZARPI_PAGE("next_event") std::size_t page_next_event(char* buffer, std::size_t capacity);
/// Ends the program; does not come back.
[[noreturn]] ZARPI_PAGE("end") void page_end();

/// Milliseconds since some moment; never goes back.
ZARPI_PAGE("now") double page_now();
/// Milliseconds since 1970 as the clock on the wall shows them.
ZARPI_PAGE("local_time") double page_local_time();
/// 32 random bits.
ZARPI_PAGE("random_bits") std::uint32_t page_random_bits();

/// The width and height of a picture file in pixels, each in 16 bits; 0 if there is none of this name.
ZARPI_PAGE("picture_size") std::uint32_t page_picture_size(const char* name, std::size_t nameLength);

/// All stored files, each as its name, a blank, its length, a line feed and its bytes. The length of all of it; at most
/// `capacity` bytes are written.
ZARPI_PAGE("stored_files") std::size_t page_stored_files(char* buffer, std::size_t capacity);
/// Notes the new content of a file, and that a file is gone. It is stored for good by page_next_event.
ZARPI_PAGE("store") void page_store(const char* name, std::size_t nameLength, const char* bytes, std::size_t length);
ZARPI_PAGE("remove") void page_remove(const char* name, std::size_t nameLength);
}
