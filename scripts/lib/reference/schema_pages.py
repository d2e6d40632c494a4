# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Shows a JSON Schema to people: a table for each object in it."""
import html
import json


def code(value):
    return f"<code>{html.escape(value if isinstance(value, str) else json.dumps(value))}</code>"


def reference(schema):
    name = schema["$ref"].removeprefix("#/$defs/")
    return f'<a href="#def-{html.escape(name)}"><code>{html.escape(name)}</code></a>'


def alternatives(schema, word):
    return f" {word} ".join(dict.fromkeys(kind(part) for part in schema))


def kind(schema):
    """What a value may be, in a few words."""
    if schema is True or schema == {}:
        return "anything"
    if "$ref" in schema:
        return reference(schema)
    if "const" in schema:
        return code(json.dumps(schema["const"]))
    if "enum" in schema:
        return ", ".join(code(json.dumps(value)) for value in schema["enum"])
    for key in ("oneOf", "anyOf"):
        if key in schema:
            return alternatives(schema[key], "or")
    types = schema.get("type", [])
    words = " or ".join([types] if isinstance(types, str) else types) or "anything"
    if "items" in schema:
        words += " of " + kind(schema["items"])
    limits = bounds(schema)
    return words + (f" ({limits})" if limits else "")


def bounds(schema):
    parts = []
    low, high = schema.get("minimum"), schema.get("maximum")
    if low is not None and high is not None:
        parts.append(f"{low} to {high}")
    elif low is not None:
        parts.append(f"at least {low}")
    elif high is not None:
        parts.append(f"at most {high}")
    if "maxLength" in schema:
        parts.append(f"at most {schema['maxLength']} characters")
    if schema.get("minLength"):
        parts.append("not empty" if schema["minLength"] == 1 else f"at least {schema['minLength']} characters")
    if "maxItems" in schema:
        parts.append(f"at most {schema['maxItems']}")
    if "pattern" in schema:
        parts.append("matches " + code(schema["pattern"]))
    if "format" in schema:
        parts.append("in the form " + code(schema["format"]))
    return ", ".join(parts)


def table(schema):
    required = set(schema.get("required", ()))
    rows = []
    for name, member in schema["properties"].items():
        about = html.escape(member.get("description", "")) if isinstance(member, dict) else ""
        nested = ""
        if isinstance(member, dict) and "properties" in member:
            nested = table(member)
        rows.append(f"<tr><td>{code(name)}</td><td>{kind(member)}</td>"
                    f"<td>{'always' if name in required else ''}</td><td>{about}{nested}</td></tr>")
    return ('<div class="wide"><table><thead><tr><th>Member</th><th>Value</th><th>Present</th><th>Meaning</th></tr>'
            f"</thead><tbody>{''.join(rows)}</tbody></table></div>")


def section(schema):
    parts = []
    if "description" in schema:
        parts.append(f"<p>{html.escape(schema['description'])}</p>")
    if "properties" in schema:
        parts.append(table(schema))
    else:
        parts.append(f"<p>{kind(schema)}</p>")
    return "".join(parts)


def title(file):
    return json.loads(file.read_text(encoding="utf-8"))["title"]


def body(file):
    schema = json.loads(file.read_text(encoding="utf-8"))
    parts = [f'<p class="download"><a href="{file.name}" type="application/json">{file.name}</a>, for validators of '
             "JSON Schema 2020-12. The file also has the conditions between members, which are not shown here.</p>",
             section(schema)]
    for name, part in schema.get("$defs", {}).items():
        parts.append(f'<h2 id="def-{html.escape(name)}"><code>{html.escape(name)}</code></h2>{section(part)}')
    return "\n".join(parts)
