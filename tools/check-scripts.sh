#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# Fails on anything that shellcheck remarks in the project's shell scripts.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mapfile -d '' -t scripts < <(git ls-files -z -- '*.sh' .ci/run)
if [[ ${#scripts[@]} -eq 0 ]]; then
  echo "error: no script is tracked here" >&2
  exit 1
fi
shellcheck --external-sources -- "${scripts[@]}"
echo "${#scripts[@]} scripts are clean."
