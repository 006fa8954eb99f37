#pragma once

#include <exception>

#include "api/APIError.h"

namespace larkspan::gallery {

// The states that several screens have. Here a list has started its first load, which does not end by itself.

inline constexpr auto initialState = [](auto&) {};

/// The list's load has returned no record.
inline constexpr auto empty = [](auto& list) { list.viewModel->isLoading = false; };

/// The list's load has failed.
inline constexpr auto failed = [](auto& list) {
    list.viewModel->isLoading = false;
    list.viewModel->error = std::make_exception_ptr(api::APIError::httpStatus(503));
};

/// An action of the screen is running.
inline constexpr auto working = [](auto& screen) { screen.action->isInProgress = true; };

/// The service has refused an action of the screen.
inline constexpr auto refused
    = [](auto& screen) { screen.action->alert.raise("Server returned HTTP status code 409."); };

inline constexpr auto aboutToDelete = [](auto& detail) { detail.confirmDelete(); };

}  // namespace larkspan::gallery
