#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
#
# Fails on anything that shellcheck remarks in the project's shell scripts, and on Python that does
# not parse.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mapfile -d '' -t scripts < <(git ls-files -z -- '*.sh' .ci/run)
if [[ ${#scripts[@]} -eq 0 ]]; then
  echo "error: no script is tracked here" >&2
  exit 1
fi
shellcheck --external-sources -- "${scripts[@]}"

mapfile -d '' -t programs < <(git ls-files -z -- '*.py')
python3 -c '
import ast, sys
for name in sys.argv[1:]:
    with open(name, encoding="utf-8") as file:
        ast.parse(file.read(), name)
' "${programs[@]}"
echo "$((${#scripts[@]} + ${#programs[@]})) scripts are clean."
