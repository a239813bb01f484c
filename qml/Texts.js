.pragma library

// The pattern with its places (%1 to %9) filled in one pass: a place mark within a value, which may be a unit's text,
// stays as it is.
function fill(pattern, ...values) {
    return pattern.replace(/%([1-9])/g, (mark, place) => place <= values.length ? values[place - 1] : mark);
}

// A name that is written from right to left, or says so, does not turn round what stands beside it.
function isolate(name) {
    const turns = /[\u0590-\u08ff\u200e\u200f\u202a-\u202e\u2066-\u2069\ufb1d-\ufdff\ufe70-\ufefc]/;
    return turns.test(name) ? "\u2068" + name + "\u2069" : name;
}

// A name that came with line breaks, as one line.
function inOneLine(text) {
    return text.replace(/[\n\v\f\r\u0085\u2028\u2029]+/g, " ");
}
