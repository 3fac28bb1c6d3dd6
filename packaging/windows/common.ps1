# What install.ps1 and uninstall.ps1 share.
Set-StrictMode -Version Latest
$ErrorActionPreference = 'Stop'

$ClsidKey = 'HKLM:\SOFTWARE\Classes\CLSID\{5E3A9C17-4B2D-41F0-9A6E-2C7D81B0E4F3}'
$SharedKey = 'HKLM:\SOFTWARE\Vorn Computer Corporation\Steadmark\Shared'
$PathValue = 'SKLIBPATH'
$SavedValue = 'SKLIBPATH_BEFORE_TQCIM'
$Module = 'tqcim64.dll'
$FileList = 'files.txt'
$Regsvr32 = Join-Path $env:SystemRoot 'System32\regsvr32.exe'
$Mofcomp = Join-Path $env:SystemRoot 'System32\wbem\mofcomp.exe'

function Write-Step([string]$Text) {
    Write-Host "tqcim: $Text"
}

# The registry and the modules are those of 64-bit Windows; all but -WhatIf changes the machine.
function Assert-Rights {
    if (-not [Environment]::Is64BitProcess) {
        throw 'This is a 32-bit PowerShell: start the 64-bit one.'
    }
    $user = New-Object Security.Principal.WindowsPrincipal([Security.Principal.WindowsIdentity]::GetCurrent())
    $administrator = $user.IsInRole([Security.Principal.WindowsBuiltInRole]::Administrator)
    if (-not $administrator -and -not $WhatIfPreference) {
        throw 'Administrator rights are needed: start PowerShell with "Run as administrator".'
    }
}

# The folder as a full path, without a backslash at its end.
function Get-FullPath([string]$Path) {
    $ExecutionContext.SessionState.Path.GetUnresolvedProviderPathFromPSPath($Path).TrimEnd('\')
}

# A registry value as it stands, with its variables; nothing where it isn't there.
function Get-RegistryText([string]$Key, [string]$Name) {
    if (Test-Path -LiteralPath $Key) {
        (Get-Item -LiteralPath $Key).GetValue($Name, $null, 'DoNotExpandEnvironmentNames')
    }
}

# Copies a registry value, of whatever kind, to another name in the same key.
function Copy-RegistryValue([string]$Key, [string]$From, [string]$To) {
    $kind = (Get-Item -LiteralPath $Key).GetValueKind($From)
    $value = Get-RegistryText $Key $From
    New-ItemProperty -LiteralPath $Key -Name $To -Value $value -PropertyType $kind -Force | Out-Null
}

# The module that COM loads for the provider; nothing where none is registered.
function Get-RegisteredModule {
    Get-RegistryText "$ClsidKey\InprocServer32" ''
}

function Test-Namespace {
    $found = Get-CimInstance -Namespace 'root\cimv2' -ClassName '__NAMESPACE' -Filter "Name = 'vorn'"
    $null -ne $found
}

# Runs a program and waits for it.
function Invoke-Program([string]$Program, [string[]]$Arguments) {
    if ($PSCmdlet.ShouldProcess("$Program $Arguments", 'Run')) {
        $process = Start-Process -FilePath $Program -ArgumentList $Arguments -NoNewWindow -Wait -PassThru
        if ($process.ExitCode -ne 0) {
            throw "$Program $Arguments ended with exit status $($process.ExitCode)."
        }
    }
}

# The management service keeps the module loaded for a while, and a loaded file can be neither
# replaced nor removed. The host process is the provider's own.
function Stop-ProviderHost {
    foreach ($process in Get-Process -Name 'WmiPrvSE' -ErrorAction SilentlyContinue) {
        foreach ($loaded in $process.Modules) {
            if ($loaded.ModuleName -eq $Module) {
                Write-Step "ending the provider's host process $($process.Id)"
                Stop-Process -Id $process.Id -Force
                $process.WaitForExit(10000) | Out-Null
            }
        }
    }
}
